#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "grid/TableContent.h"
#include "grid/TableFault.h"
#include "grid/TableLines.h"

namespace penwright {

/// The different angles of one column of a list, numbered from 0 as they come.
class ListedAngles {
public:
    /// The number of an angle; nothing when there are 32767 others.
    std::optional<std::uint16_t> add(double angle);

    const std::vector<double> &inOrder() const { return m_angles; }

private:
    std::unordered_map<double, std::uint16_t> m_numbers;
    std::vector<double> m_angles;
};

/// The directions of a list with their values. All takes time in proportion to their number.
class TablePairs {
public:
    /// Adds the direction of a line; false when there are too many different angles.
    bool add(double first, double second, double value, const TableLine &line);

    std::size_t size() const { return m_pairs.size(); }

    /// Why the pairs of angles are not all there once: one that stands twice, an angle that stands in one line alone,
    /// or the first that is missing.
    std::optional<TableFault> fault(bool verticalFirst) const;

    /// The table, when there is no fault.
    TableContent content(bool verticalFirst) const;

private:
    struct Pair {
        std::uint16_t angles[2];  ///< their numbers
        std::uint32_t line;
        double value;
    };

    // What is called slow is the column whose angle stays the same from line to line.
    std::size_t countOf(std::size_t column) const { return m_angles[column].inOrder().size(); }
    std::vector<std::uint32_t> inGroups(std::size_t column) const;
    std::optional<TableFault> faultOfTwice(const std::vector<std::uint32_t> &order, std::size_t slow,
                                           bool verticalFirst) const;
    std::optional<TableFault> faultOfLone() const;
    std::optional<TableFault> faultOfMissing(const std::vector<std::uint32_t> &order, std::size_t slow,
                                             bool verticalFirst) const;
    std::string wordsOf(std::uint16_t first, std::uint16_t second, bool verticalFirst) const;

    ListedAngles m_angles[2];
    std::vector<Pair> m_pairs;
    std::size_t m_cellsBefore = 0;  ///< that are left out at the lines' beginnings
};

}  // namespace penwright
