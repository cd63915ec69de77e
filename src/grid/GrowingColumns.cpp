#include "grid/GrowingColumns.h"

#include <cmath>
#include <QHeaderView>
#include <QTableView>

namespace penwright {
namespace {

constexpr int kColumnWidth = 40;  // logical pixels, 600 twips

}  // namespace

void useGrowingColumns(QTableView &table)
{
    table.horizontalHeader()->setMinimumSectionSize(kColumnWidth);
    narrowColumns(table);
}

void narrowColumns(QTableView &table)
{
    table.horizontalHeader()->setDefaultSectionSize(kColumnWidth);
}

void growColumn(QTableView &table, int column, double width)
{
    const int needed = static_cast<int>(std::ceil(width));
    if (needed > table.columnWidth(column))
        table.setColumnWidth(column, needed);
}

}  // namespace penwright
