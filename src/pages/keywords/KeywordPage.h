#pragma once

#include "wizard/PageFrame.h"

namespace penwright {

/// Page 3: the header lines. Back leads over the tilt page only when tilt is included.
class KeywordPage : public PageFrame {
    Q_OBJECT

public:
    explicit KeywordPage(const PageContext &context);

private:
    void cmdNext20_Click();
    void cmdBack20_Click();
};

}  // namespace penwright
