#pragma once

#include <memory>

#include "wizard/PageFrame.h"

namespace Ui {
class LampPage;
}

namespace penwright {

/// Page 1: units, luminous shape, and whether tilt data is included, which decides the next page.
class LampPage : public PageFrame {
    Q_OBJECT

public:
    explicit LampPage(const PageContext &context);
    ~LampPage() override;

    void load() override;

private:
    void cmdNext10_Click();

    std::unique_ptr<Ui::LampPage> m_form;
};

}  // namespace penwright
