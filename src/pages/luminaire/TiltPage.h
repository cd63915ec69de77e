#pragma once

#include <memory>

#include "pages/luminaire/TiltFields.h"
#include "pages/luminaire/TiltTable.h"
#include "wizard/PageFrame.h"

namespace Ui {
class TiltPage;
}

namespace penwright {

/// Page 2: how the lamp's output varies with its tilt.
class TiltPage : public PageFrame {
    Q_OBJECT

public:
    explicit TiltPage(const PageContext &context);
    ~TiltPage() override;

    std::optional<FaultPlace> placeOf(const RecordPlace &place) const override;

protected:
    void followValue() override;

    /// Never the count while there is a table.
    QWidget *fieldOnReturn(QWidget *last) const override;
    void focusFault(const FaultPlace &place) override;

private:
    void lmpTxtNumAngles_Change();
    void cmdNext15_Click();
    void cmdBack15_Click();

    TiltFields readFields() const;

    std::unique_ptr<Ui::TiltPage> m_form;
    const std::shared_ptr<TiltTable> m_table;
};

}  // namespace penwright
