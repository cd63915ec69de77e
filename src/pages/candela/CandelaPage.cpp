#include "pages/candela/CandelaPage.h"

#include <QApplication>
#include <QKeyEvent>
#include <QSignalBlocker>
#include <QTimer>

#include "core/NumberText.h"
#include "core/RecordAngles.h"
#include "grid/GridModel.h"
#include "pages/candela/CandelaChecks.h"
#include "pages/candela/StoreCandela.h"
#include "plot/PlotLook.h"
#include "review/RecordPlace.h"
#include "ui_CandelaPage.h"
#include "wizard/PageSteps.h"
#include "wizard/WarningDialog.h"

namespace penwright {
namespace {

constexpr int kFlipInterval = 100;  // milliseconds
constexpr float kLeastPlotValue = 0.01F;

void pressPageUp(QWidget &widget)
{
    for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, Qt::Key_PageUp, Qt::NoModifier);
        QCoreApplication::sendEvent(&widget, &event);
    }
}

}  // namespace

CandelaPage::CandelaPage(const PageContext &context)
    : PageFrame(kCandelaPage, context),
      m_form(std::make_unique<Ui::CandelaPage>()),
      m_table(std::make_shared<CandelaTable>(state(), caption().toStdString()))
{
    m_form->setupUi(formArea());
    m_form->planeKey->setColour(kPaperLook.plane);
    m_form->coneKey->setColour(kPaperLook.cone);
    m_form->cdaGridCd->setTable(m_table, dialogs());
    m_form->cdaHint->follow(*m_form->cdaGridCd);
    m_form->picCda->setDialogs(dialogs());
    m_form->plotStatus->follow(*m_form->picCda);
    connectGrid();
    addButtons([this] { cmdNext50_Click(); }, [this] { cmdBack50_Click(); });
}

CandelaPage::~CandelaPage() = default;

void CandelaPage::load()
{
    m_tmrFlip = new QTimer(window());
    m_tmrFlip->setObjectName("tmrFlip");
    m_tmrFlip->setInterval(kFlipInterval);
    connect(m_tmrFlip, &QTimer::timeout, this, &CandelaPage::tmrFlip_Timer);
}

void CandelaPage::start()
{
    flags() = {};
}

bool CandelaPage::losesByStart() const
{
    return m_table->hasValues();
}

void CandelaPage::connectGrid()
{
    CandelaGrid *grid = m_form->cdaGridCd;
    grid->offerTablePaste();
    connect(grid, &GridView::tablePasteAsked, this, &CandelaPage::tablePasteAsked);
    connect(grid, &GridView::rebuilt, this, &CandelaPage::showTable);
    connect(grid, &GridView::cellWritten, this, [this] { m_isTypedInto = true; });
    connect(grid, &GridView::cellWritten, this, &CandelaPage::refreshPlot);
    connect(grid, &GridView::currentCellChanged, this, &CandelaPage::showCell);
    connect(grid, &GridView::valuesReplaced, this, &CandelaPage::refreshPlot);
    connect(grid, &CandelaGrid::pointerEntered, this, &CandelaPage::showCell);
    connect(grid, &CandelaGrid::pointerLeft, this, &CandelaPage::showCurrentCell);
}

void CandelaPage::lsbStart()
{
    const bool isFirst = m_form->cdaGridCd->model()->columnCount() == 0;
    // What only turns singles into doubles is no step; nor are zeros for blanks where a step would cost what can be
    // redone.
    const bool isSame = flags().GridReady && !m_table->isOutdated();
    if (isSame && (steps().canRedo() || !m_table->hasBlanks()))
        m_form->cdaGridCd->changes().exchange(m_table->newTable());
    else
        buildTable();
    m_form->cdaGridCd->goTo(1, 1);
    showCurrentCell();
    if (isFirst)
        steps().forgetAll();  // there was no table before it
    if (m_tmrFlip)
        m_tmrFlip->start();
}

bool CandelaPage::pasteTable(const PhotometricRecord &angles, OneBasedTable<CandelaCell> cells)
{
    const bool hadTable = flags().GridReady;
    m_form->cdaGridCd->dropEdit();
    steps().beginAct("Paste Table");
    m_form->cdaGridCd->apply(m_table->pastedTable(angles, std::move(cells)));
    if (m_form->cdaGridCd->currentColumn() == CandelaTable::kLabelColumn)
        m_form->cdaGridCd->makeCurrent(1, 1);
    showCurrentCell();
    steps().endAct();
    emit filled();
    return hadTable;
}

bool CandelaPage::followRecord()
{
    if (!m_table->isOutdated())
        return false;
    {
        const QSignalBlocker unseen(m_form->cdaGridCd);  // no plot of the old cells under the new angles
        m_form->cdaGridCd->commitEditIfValid();
    }
    if (!hasAngles(state().PhotFiles(1)))
        return false;  // the table stays for the angles that page 4 still has
    steps().endAct();  // what was typed is a step of its own
    buildTable();
    m_form->cdaGridCd->makeCurrent(1, 1);  // another page may be shown, and has the focus
    showCurrentCell();
    return true;
}

std::optional<FaultPlace> CandelaPage::placeOf(const RecordPlace &place) const
{
    if (place.field != RecordField::Candela)
        return std::nullopt;
    return FaultPlace{.row = place.vertical, .column = place.index};
}

void CandelaPage::buildTable()
{
    m_form->cdaGridCd->apply(m_table->newTable());
}

void CandelaPage::showTable()
{
    m_shownColumn = 1;
    m_isTypedInto = false;
    const bool hasCone = state().PhotFiles(1).PhotometricType != kTypeB;
    for (QWidget *part : {static_cast<QWidget *>(m_form->rtbHorz), static_cast<QWidget *>(m_form->Label50a),
                          static_cast<QWidget *>(m_form->coneKey)})
        part->setVisible(hasCone);
}

void CandelaPage::followValue()
{
    showCurrentCell();
}

void CandelaPage::tmrFlip_Timer()
{
    m_tmrFlip->stop();
    CandelaGrid &grid = *m_form->cdaGridCd;
    // Who types faster than the timer keeps the row reached.
    if (grid.hasFocus() && !grid.isEditing() && !m_isTypedInto)
        for (int i = 1; i <= 3; ++i)
            pressPageUp(grid);
    grid.scrollToFirstRow();
}

void CandelaPage::showCurrentCell()
{
    showCell(m_form->cdaGridCd->currentRow(), m_form->cdaGridCd->currentColumn());
}

/// Names a cell's plane and cone and draws them; in the column of the labels the plane is the one shown before.
void CandelaPage::showCell(int row, int column)
{
    if (column != CandelaTable::kLabelColumn)
        m_shownColumn = column;
    const auto angles = m_table->anglesOf(row, m_shownColumn);
    if (!angles)
        return;
    m_shown = *angles;
    m_form->rtbVert->setText(QString::fromStdString(generalText(m_shown.horizontal)));
    m_form->rtbHorz->setText(QString::fromStdString(generalText(m_shown.vertical)));
    refreshPlot();
}

void CandelaPage::refreshPlot()
{
    if (!(flags().plotValue > 0))
        flags().plotValue = kLeastPlotValue;
    try {
        m_form->picCda->draw(state().PhotFiles(1), m_table->CandelaCells(), {m_shown.horizontal, m_shown.column},
                             {m_shown.vertical, m_shown.row});
        m_plotFailed = false;
    } catch (const std::exception &) {
        if (!std::exchange(m_plotFailed, true))
            tellPlotError();
    }
    m_form->cdaGridCd->viewport()->update();
}

// Once the event is over: the pass may run in a mouse press or in a change of the focus.
void CandelaPage::tellPlotError()
{
    const auto tell = [this] { dialogs().show({.text = "err in paintCda"}); };
    QMetaObject::invokeMethod(this, tell, Qt::QueuedConnection);
}

void CandelaPage::cmdNext50_Click()
{
    if (!m_form->cdaGridCd->commitEdit())
        return;
    dlgWarn().Clear();
    PhotometricRecord &record = state().PhotFiles(1);
    checkCandela(record, m_table->CandelaCells(), dlgWarn().list());
    if (!dlgWarn().Clean())
        return showWarnings();
    storeCandela(m_table->CandelaCells(), record);
    navigator().ShowPage(index() + 1);
}

void CandelaPage::cmdBack50_Click()
{
    m_form->cdaGridCd->commitEditIfValid();
    navigator().ShowPage(index() - 1);
}

void CandelaPage::focusFault(const FaultPlace &place)
{
    if (m_tmrFlip)
        m_tmrFlip->stop();  // its keys would lead away from the place
    m_form->cdaGridCd->goTo(place.row, place.column);
}

}  // namespace penwright
