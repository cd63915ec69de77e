#include "grid/TablePreview.h"

#include <QAbstractTableModel>
#include <QHeaderView>

#include <algorithm>
#include <utility>

#include "core/NumberText.h"
#include "grid/GridLinesStyle.h"

namespace penwright {

/// What is shown: a table, or lines where there is none.
class TablePreview::Cells : public QAbstractTableModel {
public:
    using QAbstractTableModel::QAbstractTableModel;

    void set(std::shared_ptr<const TableContent> table, double factor, std::vector<CutLine> lines)
    {
        beginResetModel();
        m_table = std::move(table);
        m_factor = factor;
        m_lines = std::move(lines);
        m_width = 0;
        for (const CutLine &line : m_lines)
            m_width = std::max(m_width, static_cast<int>(line.cells.size()));
        endResetModel();
    }

    int rowOf(std::size_t line) const
    {
        const auto it =
            std::find_if(m_lines.begin(), m_lines.end(), [line](const CutLine &shown) { return shown.number == line; });
        return it == m_lines.end() ? -1 : static_cast<int>(it - m_lines.begin());
    }

    int rowCount(const QModelIndex &parent = {}) const override
    {
        return parent.isValid() ? 0 : m_lines.empty() ? m_table->values.columns() : static_cast<int>(m_lines.size());
    }

    int columnCount(const QModelIndex &parent = {}) const override
    {
        return parent.isValid() ? 0 : m_lines.empty() ? m_table->values.rows() : m_width;
    }

    QVariant data(const QModelIndex &index, int role) const override
    {
        if (!index.isValid())
            return {};
        if (role == Qt::TextAlignmentRole)
            return QVariant::fromValue(m_lines.empty() ? Qt::AlignRight | Qt::AlignVCenter
                                                       : Qt::AlignLeft | Qt::AlignVCenter);
        return role == Qt::DisplayRole ? QString::fromStdString(text(index.row(), index.column())) : QVariant();
    }

    QVariant headerData(int section, Qt::Orientation orientation, int role) const override
    {
        if (role == Qt::DisplayRole)
            return QString::fromStdString(header(section + 1, orientation == Qt::Vertical));
        return {};
    }

private:
    std::string text(int row, int column) const
    {
        if (m_lines.empty())
            return generalText(m_table->values(column + 1, row + 1) * m_factor);
        const auto &cells = m_lines[static_cast<std::size_t>(row)].cells;
        return static_cast<std::size_t>(column) < cells.size() ? cells[static_cast<std::size_t>(column)] : "";
    }

    std::string header(int section, bool isRow) const
    {
        if (!m_lines.empty())
            return isRow ? "Line " + std::to_string(m_lines[static_cast<std::size_t>(section) - 1].number)
                         : "Cell " + std::to_string(section);
        const OneBased<double> &angles = isRow ? m_table->vertical : m_table->horizontal;
        if (angles.empty())
            return (isRow ? "Row " : "Column ") + std::to_string(section);
        return (isRow ? "V " : "H ") + generalText(angles(section));
    }

    std::shared_ptr<const TableContent> m_table = std::make_shared<const TableContent>();
    double m_factor = 1;
    std::vector<CutLine> m_lines;
    int m_width = 0;
};

TablePreview::TablePreview(QWidget *parent) : QTableView(parent), m_cells(new Cells(this))
{
    constexpr int kPadding = 5;
    auto *lines = new GridLinesStyle;
    lines->setParent(this);
    setStyle(lines);
    setModel(m_cells);
    setEditTriggers(NoEditTriggers);
    setTabKeyNavigation(false);
    setWordWrap(false);
    setHorizontalScrollMode(ScrollPerPixel);
    setCornerButtonEnabled(false);
    for (QHeaderView *header : {horizontalHeader(), verticalHeader()}) {
        constexpr int kLooks = 30;  // cells of a row or column that its width is made for, with those in sight
        header->setHighlightSections(false);
        header->setResizeContentsPrecision(kLooks);
    }
    const int height = fontMetrics().height() + 2 * kPadding;
    verticalHeader()->setMinimumSectionSize(height);
    verticalHeader()->setDefaultSectionSize(height);
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultAlignment(Qt::AlignCenter);
}

void TablePreview::showTable(std::shared_ptr<const TableContent> table, double factor)
{
    m_cells->set(std::move(table), factor, {});
    showCells();
}

void TablePreview::showLines(std::vector<CutLine> lines, std::size_t line, std::size_t cell)
{
    m_cells->set(std::make_shared<const TableContent>(), 1, std::move(lines));
    showCells();
    const QModelIndex index = m_cells->index(m_cells->rowOf(line), std::max(static_cast<int>(cell) - 1, 0));
    if (!index.isValid())
        return;
    setCurrentIndex(index);
    scrollTo(index, PositionAtCenter);
}

void TablePreview::showCells()
{
    // Those beyond are seen by who scrolls there, and as wide as the widest of these.
    constexpr int kFitted = 100;
    QHeaderView *header = horizontalHeader();
    std::vector<int> widths;
    for (int column = 0; column < std::min(kFitted, m_cells->columnCount()); ++column)
        widths.push_back(std::max(sizeHintForColumn(column), header->sectionSizeHint(column)));
    const int widest = widths.empty() ? 0 : *std::max_element(widths.begin(), widths.end());
    header->setDefaultSectionSize(std::max(widest, header->minimumSectionSize()));  // of all sections
    for (std::size_t column = 0; column < widths.size(); ++column)
        setColumnWidth(static_cast<int>(column), widths[column]);
    setCurrentIndex(m_cells->index(0, 0));
}

}  // namespace penwright
