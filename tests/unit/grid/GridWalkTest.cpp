#include "grid/GridWalk.h"

#include <gtest/gtest.h>

#include "support/TextTable.h"

namespace penwright::test {
namespace {

struct WalkCase {
    GridKey key;
    bool forward;
    TabWay way;
    std::string from;
    std::string to;  ///< "" where the key leaves the grid
};

constexpr TabWay kAlong = TabWay::AlongRow;
constexpr TabWay kDown = TabWay::DownColumn;

/// "B3" as a cell; "" as none.
GridCell cellOf(const std::string &name)
{
    return name.empty() ? GridCell() : GridCell{std::stoi(name.substr(1)), name[0] - 'A'};
}

void expectWalks(const TextTable &table, const std::vector<WalkCase> &cases)
{
    for (const WalkCase &walk : cases) {
        const auto cell = nextCell(table, cellOf(walk.from), walk.key, walk.forward, walk.way);
        EXPECT_EQ(cell.has_value(), !walk.to.empty()) << walk.from;
        EXPECT_EQ(cell.value_or(GridCell()), cellOf(walk.to)) << walk.from;
    }
}

TEST(GridWalk, isATableOfKeysOverThreeRowsAndTwoColumns)
{
    expectWalks(TextTable(3, 2), {{GridKey::Tab, true, kAlong, "A1", "B1"},
                                  {GridKey::Tab, true, kAlong, "B1", "A2"},
                                  {GridKey::Tab, true, kAlong, "B3", ""},
                                  {GridKey::Tab, false, kAlong, "A2", "B1"},
                                  {GridKey::Tab, false, kAlong, "A1", ""},
                                  {GridKey::Tab, true, kAlong, "", "A1"},
                                  {GridKey::Tab, false, kAlong, "", ""},
                                  {GridKey::Tab, true, kDown, "B1", "B2"},
                                  {GridKey::Tab, true, kDown, "B3", ""},
                                  {GridKey::Tab, false, kDown, "B2", "B1"},
                                  {GridKey::Tab, false, kDown, "B1", ""},
                                  {GridKey::Tab, true, kDown, "", ""},
                                  {GridKey::CtrlTab, true, kAlong, "A1", ""},
                                  {GridKey::CtrlTab, false, kDown, "B2", ""},
                                  {GridKey::Enter, true, kAlong, "A1", "A2"},
                                  {GridKey::Enter, true, kAlong, "B3", "B3"},
                                  {GridKey::Enter, false, kDown, "B3", "B2"},
                                  {GridKey::Enter, false, kAlong, "A1", "A1"},
                                  {GridKey::Enter, true, kAlong, "", ""}});
}

TEST(GridWalk, goesAlongTheOnlyRow)
{
    expectWalks(TextTable(1, 2), {{GridKey::Enter, true, kAlong, "A1", "B1"},
                                  {GridKey::Enter, true, kAlong, "B1", "B1"},
                                  {GridKey::Enter, false, kAlong, "B1", "A1"},
                                  {GridKey::Enter, true, kAlong, "", "A1"}});
}

TEST(GridWalk, goesDownTheOnlyColumn)
{
    expectWalks(TextTable(2, 1), {{GridKey::Tab, true, kAlong, "A1", "A2"}, {GridKey::Tab, false, kAlong, "A2", "A1"}});
}

TEST(GridWalk, passesOverReadOnlyColumnsAndTakesInTheRowToAppend)
{
    TextTable table(2, 3);
    table.readOnlyColumn = 0;
    table.growing = true;
    expectWalks(table, {{GridKey::Tab, true, kAlong, "", "B1"},
                        {GridKey::Tab, true, kAlong, "C1", "B2"},
                        {GridKey::Tab, true, kAlong, "C2", "B3"},
                        {GridKey::Tab, true, kAlong, "C3", ""},
                        {GridKey::Tab, false, kAlong, "B2", "C1"},
                        {GridKey::Tab, false, kAlong, "B1", ""},
                        {GridKey::Enter, true, kAlong, "B2", "B3"}});
}

TEST(GridWalk, leavesAGridWithoutCells)
{
    expectWalks(TextTable(0, 2), {{GridKey::Tab, true, kAlong, "", ""}, {GridKey::Tab, false, kDown, "", ""}});
    TextTable none(1, 0);
    expectWalks(none, {{GridKey::Tab, true, kAlong, "", ""}, {GridKey::Tab, false, kAlong, "A1", ""}});
}

}  // namespace
}  // namespace penwright::test
