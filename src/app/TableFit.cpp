#include "app/TableFit.h"

#include <algorithm>
#include <exception>
#include <optional>

#include "core/Counted.h"
#include "core/NumberText.h"
#include "pages/candela/CandelaChecks.h"
#include "pages/distribution/DistributionFields.h"

namespace penwright {
namespace {

constexpr int kShownFaults = 3;

/// The list for an axis of a table: its own, the one that there is, or of a single plane the angle 0.
AngleCells listFor(const OneBased<double> &own, const AngleCells &there, int count)
{
    AngleCells cells;
    for (const double angle : own)
        cells.append(toSingle(angle));
    if (cells.empty() && !there.empty())
        return there;
    if (cells.empty() && count == 1)
        cells.append(0.0F);
    return cells;
}

int linesOf(const WarningList &list)
{
    return static_cast<int>(std::count(list.text().begin(), list.text().end(), '\n'));
}

/// The first faults of a list, parted by semicolons.
std::string firstFaults(const WarningList &list, int most)
{
    std::string faults;
    std::size_t begin = 0;
    for (int fault = 0; fault < most && begin < list.text().size(); ++fault) {
        const std::size_t end = list.text().find("\r\n", begin);
        faults += (faults.empty() ? "" : "; ") + list.text().substr(begin, end - begin);
        begin = end + 2;
    }
    return faults;
}

/// What a check raises.
template <typename Check>
std::optional<std::string> errorOf(const Check &check)
{
    try {
        check();
        return std::nullopt;
    } catch (const std::exception &error) {
        return error.what();
    }
}

std::optional<std::string> faultOfAngles(const FittedTable &fitted, std::int16_t type)
{
    if (std::max(fitted.vertical.size(), fitted.horizontal.size()) > AngleList::kMostAngles)
        return "Read: " + counted(fitted.vertical.size(), "vertical angle") + " and " +
               counted(fitted.horizontal.size(), "horizontal angle") + ". A list holds 1000 at most.";
    WarningList list;
    const DistributionFields fields{type, fitted.vertical, fitted.horizontal};
    if (const auto error = errorOf([&] { checkDistribution(fields, list); }))
        return "The angles cannot be taken: " + *error;
    if (!list.Clean())
        return "The angles cannot be taken: " + firstFaults(list, kShownFaults);
    return std::nullopt;
}

void fillCells(FittedTable &fitted, const OneBasedTable<double> &values, double factor)
{
    fitted.cells.reset(values.rows(), values.columns());
    for (int h = 1; h <= values.rows(); ++h)
        for (int v = 1; v <= values.columns(); ++v)
            fitted.cells(h, v) = values(h, v) * factor;
}

/// Checks the values as their page does when it is left: what cannot be stored is a fault, all else a remark.
std::optional<std::string> faultOfValues(FittedTable &fitted)
{
    WarningList list;
    if (const auto error = errorOf([&] { checkCandela(fitted.angles, fitted.cells, list); }))
        return "The values cannot be taken: " + *error;
    if (!list.Clean())
        fitted.remark =
            "At its Next page 5 will name " + counted(linesOf(list), "fault") + ", first: " + firstFaults(list, 1);
    return std::nullopt;
}

}  // namespace

std::variant<FittedTable, std::string> fitTable(const TableContent &table, double factor, const TableGround &ground)
{
    FittedTable fitted;
    fitted.vertical = listFor(table.vertical, ground.vertical, table.values.columns());
    fitted.horizontal = listFor(table.horizontal, ground.horizontal, table.values.rows());
    if (fitted.vertical.empty() || fitted.horizontal.empty())
        return "The table has no " + std::string(fitted.vertical.empty() ? "vertical" : "horizontal") +
               " angles, and page 4 has none yet.";
    if (const auto misfit = tableMisfit(table, fitted.vertical.size(), fitted.horizontal.size()))
        return *misfit;
    if (const auto fault = faultOfAngles(fitted, ground.photometricType))
        return *fault;
    storeDistribution({ground.photometricType, fitted.vertical, fitted.horizontal}, fitted.angles);
    fillCells(fitted, table.values, factor);
    if (const auto fault = faultOfValues(fitted))
        return *fault;
    return fitted;
}

std::string neededSize(const TableGround &ground)
{
    if (ground.vertical.empty() || ground.horizontal.empty())
        return {};
    return std::to_string(ground.vertical.size()) + " x " + std::to_string(ground.horizontal.size()) +
           " values needed (vertical x horizontal angles).";
}

}  // namespace penwright
