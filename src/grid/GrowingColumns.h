#pragma once

class QTableView;

namespace penwright {

/// Has a table's columns begin 600 twips wide and never become narrower.
void useGrowingColumns(QTableView &table);

/// Gives such columns, those that stay too, the width that they begin with.
void narrowColumns(QTableView &table);

/// Widens a column to `width` logical pixels where it is narrower.
void growColumn(QTableView &table, int column, double width);

}  // namespace penwright
