#include "grid/GridModel.h"

#include <algorithm>
#include <utility>

#include "core/Blanks.h"
#include "grid/SourceEdits.h"

namespace penwright {
namespace {

/// What a grid shows that serves nothing yet.
class NoCells : public GridSource {
public:
    int rowCount() const override { return 0; }
    int columnCount() const override { return 0; }
    std::string columnCaption(int) const override { return {}; }
    std::string read(int, int) const override { return {}; }
    std::unique_ptr<GridContent> contentAfter(const GridEdit &) override { return nullptr; }
};

}  // namespace

GridModel::GridModel(QObject *parent) : QAbstractTableModel(parent), m_source(std::make_shared<NoCells>()) {}

void GridModel::setSource(std::shared_ptr<GridSource> source)
{
    beginResetModel();
    m_source = std::move(source);
    m_rows = shownRows();
    m_columns = m_source->columnCount();
    endResetModel();
}

bool GridModel::apply(GridEdit given)
{
    const auto edit = std::make_shared<GridEdit>(std::move(given));
    const auto refusal = prepareEdit(*edit, *m_source);
    if (edit->content) {
        write(*edit);
        for (GridText &cell : edit->texts)
            cell.text = std::string();
        emit made(edit);
    }
    emit hinted(QString::fromStdString(edit->hint));
    if (refusal)
        emit refused(*refusal);
    return !refusal;
}

bool GridModel::isTaken(GridEdit edit) const
{
    const bool isRefused = prepareEdit(edit, *m_source).has_value();
    return edit.content || !isRefused;  // a block of what stands already changes nothing, but is none that is refused
}

void GridModel::exchange(const GridEdit &edit)
{
    write(edit);
    emit hinted({});
}

void GridModel::write(const GridEdit &edit)
{
    if (edit.reach == GridReach::Table)
        return writeTable(*edit.content);
    edit.content->swap();
    if (edit.reach == GridReach::Cells)
        return tellCells(edit.texts);
    emit dataChanged(index(0, 0), index(m_rows - 1, m_columns - 1));
    emit valuesReplaced();
}

void GridModel::writeTable(GridContent &content)
{
    beginResetModel();
    content.swap();
    m_rows = shownRows();
    m_columns = m_source->columnCount();
    endResetModel();
}

// One signal for all of them to the toolkit: a block may have a million cells.
void GridModel::tellCells(const std::vector<GridText> &cells)
{
    showRows();
    const int rows = m_source->rowCount();
    if (cells.empty() || cells.front().row > rows)
        return;
    emit dataChanged(index(cells.front().row - 1, 0), index(std::min(rows, cells.back().row) - 1, m_columns - 1));
    for (const GridText &cell : cells)
        if (cell.row <= rows)
            emit cellWritten(cell.row, cell.column);
}

void GridModel::showRows()
{
    const int rows = shownRows();
    if (rows == m_rows)
        return;
    if (rows > m_rows) {
        beginInsertRows({}, m_rows, rows - 1);
        m_rows = rows;
        endInsertRows();
    } else {
        beginRemoveRows({}, rows, m_rows - 1);
        m_rows = rows;
        endRemoveRows();
    }
    emit headerDataChanged(Qt::Vertical, 0, m_rows - 1);
}

std::string GridModel::read(int row, int column) const
{
    const bool isThere = row >= 1 && row <= m_source->rowCount() && column >= 0 && column < m_source->columnCount();
    return isThere ? m_source->read(row, column) : std::string();
}

std::vector<GridChoice> GridModel::choices(const QModelIndex &cell) const
{
    return cell.isValid() ? m_source->choices(cell.row() + 1, cell.column()) : std::vector<GridChoice>();
}

QString GridModel::cellName(const QModelIndex &cell) const
{
    return QString::fromStdString(m_source->rowName(cell.row() + 1) + ", " + m_source->columnName(cell.column()));
}

int GridModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_rows;
}

int GridModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_columns;
}

QVariant GridModel::data(const QModelIndex &index, int role) const
{
    if (index.isValid() && role == Qt::AccessibleDescriptionRole && isReadOnly(index.column()))
        return QStringLiteral("Read-only");
    if (index.isValid() && role == Qt::AccessibleDescriptionRole && m_source->tellsPlaces())
        return QString(cellName(index) + ": " + spokenText(index));
    if (index.isValid() && role == Qt::AccessibleTextRole)
        return spokenText(index);
    if (!index.isValid() || (role != Qt::DisplayRole && role != Qt::EditRole))
        return {};
    return QString::fromStdString(read(index.row() + 1, index.column()));
}

/// What a screen reader says of a cell, which would be silent about blanks.
QString GridModel::spokenText(const QModelIndex &cell) const
{
    const std::string text = read(cell.row() + 1, cell.column());
    return withoutOuterBlanks(text).empty() ? QStringLiteral("blank") : QString::fromStdString(text);
}

bool GridModel::setData(const QModelIndex &index, const QVariant &value, int)
{
    return apply(typedEdit(*m_source, index.row() + 1, index.column(), value.toString().toStdString()));
}

QVariant GridModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role == Qt::AccessibleTextRole)
        return QString::fromStdString(orientation == Qt::Horizontal ? m_source->columnName(section)
                                                                    : m_source->rowName(section + 1));
    if (role != Qt::DisplayRole)
        return {};
    if (orientation == Qt::Horizontal)
        return QString::fromStdString(m_source->columnCaption(section));
    return section < m_source->rowCount() ? QString::number(section + 1) : QStringLiteral("*");
}

Qt::ItemFlags GridModel::flags(const QModelIndex &index) const
{
    const Qt::ItemFlags shown = QAbstractTableModel::flags(index) | Qt::ItemNeverHasChildren;
    return index.isValid() && !isReadOnly(index.column()) ? shown | Qt::ItemIsEditable : shown;
}

GridCell cellOf(const QModelIndex &index)
{
    return {index.row() + 1, std::max(0, index.column())};
}

}  // namespace penwright
