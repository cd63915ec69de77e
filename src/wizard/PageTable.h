#pragma once

#include <array>
#include <string_view>

namespace penwright {

/// Page indexes as ShowPage counts them.
enum PageIndex : int { kLampPage, kTiltPage, kKeywordPage, kDistributionPage, kCandelaPage, kFinishPage, kPageCount };

/// One page of the wizard.
struct PageRow {
    int number;                     ///< the page number that its control names carry
    std::string_view caption;       ///< the window's caption while the page is shown
    int helpId;                     ///< context id of its help topic
    std::string_view cancelButton;  ///< page 10's cancel button alone has no number
};

/// The pages in the order of their indexes.
inline constexpr std::array kPages{
    PageRow{10, "New Photometric file: (1 of 6) General Info", 202, "cmdCancel"},
    PageRow{15, "New Photometric file: (2 of 6) Lamp Tilt Info", 203, "cmdCancel15"},
    PageRow{20, "New Photometric file: (3 of 6) Descriptive Information", 204, "cmdCancel20"},
    PageRow{30, "New Photometric file: (4 of 6) Photometric Distribution", 205, "cmdCancel30"},
    PageRow{50, "New Photometric file: (5 of 6) Candela Values", 206, "cmdCancel50"},
    PageRow{80, "New Photometric file: (6 of 6) Complete!", 207, "cmdCancel80"},
};
static_assert(kPages.size() == kPageCount);

}  // namespace penwright
