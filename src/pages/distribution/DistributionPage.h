#pragma once

#include <functional>
#include <memory>

#include "pages/distribution/AngleList.h"
#include "pages/distribution/DistributionFields.h"
#include "wizard/PageFrame.h"

class QLabel;

namespace Ui {
class DistributionPage;
}

namespace penwright {

class AngleGrid;
class AngleListBox;

/// Page 4: photometric type and angles.
class DistributionPage : public PageFrame {
    Q_OBJECT

public:
    /// `lsbStart` builds the candela table from the record; it runs each time the page is left by Next.
    DistributionPage(const PageContext &context, std::function<void()> lsbStart);
    ~DistributionPage() override;

    /// Whether a photometric type has been chosen.
    bool hasType() const;

    /// What stands on the page.
    DistributionFields readFields() const;

    /// What its controls are to hold to show a type and two lists: nothing of a list that shows the same angles
    /// already, but for its cells as they stand where it is to be there in any case.
    PageText textOf(const DistributionFields &lists, bool evenIfSame) const;

    /// Shows the lists that page 5's table is of. It has others where undo has brought a table back there, or where the
    /// host has sent one: the page goes along its steps to them, or they come in one of their own.
    void comeBackFrom(int page) override;
    PageValue valueOnReturn() const override;

    std::optional<FaultPlace> placeOf(const RecordPlace &place) const override;

signals:
    /// A table is to be pasted that is yet to be understood.
    void tablePasteAsked();

protected:
    void followValue() override;
    void focusFault(const FaultPlace &place) override;

private:
    void rdoC_Click();
    void rdoB_Click();
    void phoCmbVert_Change();
    void phoCmbHorz_Change();
    void cmdNext30_Click();
    void cmdBack30_Click();

    void offerAngles();
    static void tellSign(AngleListBox &list, QLabel &hint, bool isPending);
    void resizeAngles(AngleListBox &list, AngleList &angles, AngleGrid &grid);
    std::int16_t photometricType() const;
    std::optional<DistributionFields> tableLists() const;
    bool isOf(const DistributionFields &lists) const;

    std::unique_ptr<Ui::DistributionPage> m_form;
    std::function<void()> m_lsbStart;
    const std::shared_ptr<AngleList> m_vertical = std::make_shared<AngleList>(AngleAxis::Vertical);
    const std::shared_ptr<AngleList> m_horizontal = std::make_shared<AngleList>(AngleAxis::Horizontal);
};

}  // namespace penwright
