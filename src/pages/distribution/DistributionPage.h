#pragma once

#include "wizard/PageFrame.h"

namespace penwright {

/// Page 4: photometric type and angles.
class DistributionPage : public PageFrame {
    Q_OBJECT

public:
    explicit DistributionPage(const PageContext &context);

private:
    void cmdNext30_Click();
    void cmdBack30_Click();
};

}  // namespace penwright
