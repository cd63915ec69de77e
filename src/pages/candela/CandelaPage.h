#pragma once

#include "wizard/PageFrame.h"

namespace penwright {

/// Page 5: the candela table.
class CandelaPage : public PageFrame {
    Q_OBJECT

public:
    explicit CandelaPage(const PageContext &context);

private:
    void cmdNext50_Click();
    void cmdBack50_Click();
};

}  // namespace penwright
