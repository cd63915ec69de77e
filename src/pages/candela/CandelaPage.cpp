#include "pages/candela/CandelaPage.h"

namespace penwright {

CandelaPage::CandelaPage(const PageContext &context) : PageFrame(kCandelaPage, context)
{
    showValuesComeFromHost();
    addButtons([this] { cmdNext50_Click(); }, [this] { cmdBack50_Click(); });
}

void CandelaPage::cmdNext50_Click()
{
    navigator().ShowPage(kFinishPage);
}

void CandelaPage::cmdBack50_Click()
{
    navigator().ShowPage(kDistributionPage);
}

}  // namespace penwright
