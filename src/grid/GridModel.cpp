#include "grid/GridModel.h"

#include <algorithm>
#include <utility>

namespace penwright {
namespace {

/// Runs `act` for each cell of a block until it answers false.
template <typename Act>
bool forEachCell(const GridLines &lines, int firstRow, int firstColumn, const Act &act)
{
    for (int row = firstRow; const auto &line : lines) {
        for (int column = firstColumn; const std::string &text : line)
            if (!act(row, column++, text))
                return false;
        ++row;
    }
    return true;
}

}  // namespace

void GridModel::setSource(GridSource &source)
{
    m_source = &source;
    m_life = source.life();
    refresh();
}

void GridModel::refresh()
{
    beginResetModel();
    m_rows = shownRows();
    m_columns = source() ? source()->columnCount() : 0;
    endResetModel();
}

std::string GridModel::read(int row, int column) const
{
    const bool isThere = row >= 1 && row <= sourceRows() && column >= 0 && column < m_source->columnCount();
    return isThere ? m_source->read(row, column) : std::string();
}

std::optional<MessageBox> GridModel::take(int row, int column, std::string_view text)
{
    if (!source() || (row > sourceRows() && m_source->kept(text).empty()))
        return std::nullopt;
    if (auto refusal = m_source->check(row, column, text))
        return refusal;
    appendUpTo(row);
    if (auto refusal = m_source->write(row, column, text))
        return refusal;
    noteChanges({{row, column}});
    return std::nullopt;
}

std::optional<GridModel::Refusal> GridModel::takeBlock(int row, int column, const GridLines &lines,
                                                       const std::string &title)
{
    if (!source())
        return std::nullopt;
    std::optional<Refusal> refusal;
    const auto note = [&](int r, int c, std::optional<MessageBox> box) {
        if (box)
            refusal = {r, c, *std::move(box)};
        return !refusal;
    };
    if (!forEachCell(lines, row, column,
                     [&](int r, int c, const std::string &text) { return note(r, c, checkPasted(r, c, text, title)); }))
        return refusal;
    appendUpTo(row + static_cast<int>(lines.size()) - 1);
    std::vector<std::pair<int, int>> changed;
    forEachCell(lines, row, column, [&](int r, int c, const std::string &text) {
        if (text == read(r, c))
            return true;
        const bool isTaken = note(r, c, m_source->write(r, c, text));
        if (isTaken)
            changed.emplace_back(r, c);
        return isTaken;
    });
    noteChanges(changed);
    return refusal;
}

std::optional<MessageBox> GridModel::checkPasted(int row, int column, std::string_view text,
                                                 const std::string &title) const
{
    if (text == read(row, column))
        return std::nullopt;
    if (!isReadOnly(column))
        return m_source->check(row, column, text);
    return MessageBox{.text = "Row " + std::to_string(row) + ": the column \"" + m_source->columnCaption(column) +
                              "\" cannot be changed.",
                      .title = title};
}

std::optional<GridModel::Refusal> GridModel::clearBlock(int firstRow, int firstColumn, int lastRow, int lastColumn)
{
    std::optional<Refusal> refusal;
    std::vector<std::pair<int, int>> changed;
    for (int row = std::max(1, firstRow); row <= std::min(lastRow, sourceRows()); ++row)
        for (int column = firstColumn; column <= lastColumn; ++column) {
            if (isReadOnly(column))
                continue;
            const std::string before = read(row, column);
            const auto box = m_source->clear(row, column);
            if (!box && read(row, column) != before)
                changed.emplace_back(row, column);
            else if (box && !refusal)
                refusal = {row, column, *box};
        }
    noteChanges(changed);
    return refusal;
}

void GridModel::appendUpTo(int row)
{
    while (sourceRows() < row && m_source->canAppend())
        m_source->append();
    const int rows = shownRows();
    if (rows > m_rows) {
        beginInsertRows({}, m_rows, rows - 1);
        m_rows = rows;
        endInsertRows();
    }
    emit headerDataChanged(Qt::Vertical, 0, m_rows - 1);
}

// One signal for all of them to the toolkit: a block may have a million cells.
void GridModel::noteChanges(const std::vector<std::pair<int, int>> &cells)
{
    if (cells.empty())
        return;
    emit dataChanged(index(cells.front().first - 1, 0), index(cells.back().first - 1, m_columns - 1));
    for (const auto &[row, column] : cells)
        emit taken(row, column);
}

std::vector<GridChoice> GridModel::choices(int row, int column) const
{
    return source() ? source()->choices(row, column) : std::vector<GridChoice>();
}

QString GridModel::cellName(int row, int column) const
{
    return source() ? QString::fromStdString(source()->rowName(row) + ", " + source()->columnName(column)) : QString();
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
    if (!index.isValid() || (role != Qt::DisplayRole && role != Qt::EditRole))
        return {};
    return QString::fromStdString(read(index.row() + 1, index.column()));
}

bool GridModel::setData(const QModelIndex &index, const QVariant &value, int)
{
    const int row = index.row() + 1;
    const auto refusal = take(row, index.column(), value.toString().toStdString());
    if (refusal)
        emit refused(row, index.column(), *refusal);
    return !refusal;
}

QVariant GridModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (!source() || (role != Qt::DisplayRole && role != Qt::AccessibleTextRole))
        return {};
    if (role == Qt::AccessibleTextRole)
        return QString::fromStdString(orientation == Qt::Horizontal ? m_source->columnName(section)
                                                                    : m_source->rowName(section + 1));
    if (orientation == Qt::Horizontal)
        return QString::fromStdString(m_source->columnCaption(section));
    return section < sourceRows() ? QString::number(section + 1) : QStringLiteral("*");
}

Qt::ItemFlags GridModel::flags(const QModelIndex &index) const
{
    const Qt::ItemFlags shown = QAbstractTableModel::flags(index) | Qt::ItemNeverHasChildren;
    return index.isValid() && !isReadOnly(index.column()) ? shown | Qt::ItemIsEditable : shown;
}

}  // namespace penwright
