#pragma once

#include "wizard/PageFrame.h"

namespace penwright {

/// Page 2: lamp tilt.
class TiltPage : public PageFrame {
    Q_OBJECT

public:
    explicit TiltPage(const PageContext &context);

private:
    void cmdNext15_Click();
    void cmdBack15_Click();
};

}  // namespace penwright
