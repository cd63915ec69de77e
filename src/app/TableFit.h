#pragma once

#include <cstdint>
#include <string>
#include <variant>

#include "core/CandelaCell.h"
#include "core/PhotometricRecord.h"
#include "grid/TableText.h"
#include "pages/distribution/AngleList.h"

namespace penwright {

/// What a table meets where it is pasted.
struct TableGround {
    std::int16_t photometricType = kTypeC;
    AngleCells vertical{};  ///< the lists that there are; empty ones have not been sized yet
    AngleCells horizontal{};
};

/// A table as the pages take it.
struct FittedTable {
    AngleCells vertical{};  ///< the lists that it is of, its own or those that there were
    AngleCells horizontal{};
    PhotometricRecord angles{};          ///< type, counts and angles
    OneBasedTable<CandelaCell> cells{};  ///< by (horizontal index, vertical index)
    std::string remark{};  ///< what the page of the values would tell of them when it is left, "" for nothing
};

/// Puts a table on its ground: its own angles take the place of the lists, a list that it has none for must fit it, and
/// for a single plane without an angle, where there is no list yet, the angle is 0. Angles must pass the checks of
/// their page. Values, multiplied by `factor`, may not be beyond a single; what else their page would say of them is a
/// remark. A sentence for the user when the table does not fit.
std::variant<FittedTable, std::string> fitTable(const TableContent &table, double factor, const TableGround &ground);

/// What a table without angles is to have, in a sentence; "" where any size may come.
std::string neededSize(const TableGround &ground);

}  // namespace penwright
