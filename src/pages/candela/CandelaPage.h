#pragma once

#include <memory>

#include "pages/candela/CandelaState.h"
#include "pages/candela/CandelaTable.h"
#include "wizard/PageFrame.h"

class QTimer;

namespace Ui {
class CandelaPage;
}

namespace penwright {

/// Page 5: the candela table and its plot.
class CandelaPage : public PageFrame {
    Q_OBJECT

public:
    explicit CandelaPage(const PageContext &context);
    ~CandelaPage() override;

    void load() override;

    /// Clears the flags: the next table is built anew.
    void start() override;
    bool losesByStart() const override;

    /// Builds the table from record slot 1 and shows its first cell; page 4 runs it each time it is left by Next.
    /// Error 9 when the record's angles are fewer than it counts.
    void lsbStart();

    /// Fills the table with cells by (horizontal index, vertical index), and builds it for other angles first where it
    /// is not of these, as one step. Whether it can be taken back on this page too: there was a table before.
    bool pasteTable(const PhotometricRecord &angles, OneBasedTable<CandelaCell> cells);

    /// Builds the table anew where it is of another type, other counts or other angles; what fits is kept.
    bool followRecord() override;

    std::optional<FaultPlace> placeOf(const RecordPlace &place) const override;

    CandelaState &flags() { return m_table->flags(); }

signals:
    /// A table is to be pasted that is yet to be understood.
    void tablePasteAsked();

protected:
    void followValue() override;
    void focusFault(const FaultPlace &place) override;

private:
    void tmrFlip_Timer();
    void cmdNext50_Click();
    void cmdBack50_Click();

    void connectGrid();
    void buildTable();
    void showTable();
    void showCurrentCell();
    void showCell(int row, int column);
    void refreshPlot();
    void tellPlotError();

    std::unique_ptr<Ui::CandelaPage> m_form;
    const std::shared_ptr<CandelaTable> m_table;
    CandelaTable::CellAngles m_shown;  ///< of the cell whose plane and cone are drawn
    int m_shownColumn = 1;
    bool m_isTypedInto = false;  ///< a value has been written since the table was built
    bool m_plotFailed = false;   ///< told, and not told again until a pass has succeeded
    QTimer *m_tmrFlip = nullptr;
};

}  // namespace penwright
