#include "unit/pages/candela/CandelaTest.h"

namespace penwright::test {
namespace {

/// All that a change of the table may touch.
struct CandelaAll {
    OneBasedTable<CandelaCell> cells;
    PhotometricRecord record;
    OneBased<PhotometricRecord> work;

    bool operator==(const CandelaAll &) const = default;
};

/// Changes whose content is exchanged once more, and once more again.
class CandelaUndo : public CandelaTest {
protected:
    CandelaUndo()
    {
        build({0, 90}, {0, 45, 90});
        apply(table, table.PasteCandelaTable("1\t2\n3\t4\n5\t6\n"));
    }

    CandelaAll all() { return {table.CandelaCells(), record(), state.CandelaWorkRecord}; }

    void expectWayBack(GridEdit edit, const CandelaAll &before)
    {
        ASSERT_EQ(prepareEdit(edit, table).has_value(), edit.refused.has_value());
        ASSERT_TRUE(edit.content);
        edit.content->swap();
        const CandelaAll after = all();
        EXPECT_FALSE(after == before);
        for (int turn = 0; turn < 2; ++turn) {
            edit.content->swap();
            EXPECT_TRUE(all() == before);
            edit.content->swap();
            EXPECT_TRUE(all() == after);
        }
    }
};

TEST_F(CandelaUndo, leadsBackFromATypedCell)
{
    expectWayBack(typedEdit(table, 2, 1, "7.5"), all());
}

TEST_F(CandelaUndo, leadsBackFromAPaste)
{
    expectWayBack(table.PasteCandelaTable("9\t8\n7\t6\n5\t4\n"), all());
}

TEST_F(CandelaUndo, leadsBackFromATableOfTheSameAngles)
{
    expectWayBack(table.newTable(), all());
}

TEST_F(CandelaUndo, leadsBackFromATableOfOtherAnglesWithThoseOfTheRecord)
{
    const CandelaAll before = all();
    giveAngles({0}, {0, 90}, kTypeB);
    expectWayBack(table.newTable(), before);
    EXPECT_EQ(shown(), "  |0\n0|1\n90|3\n");
}

TEST_F(CandelaUndo, keepsWhatElseTheHostHasPutIntoTheRecord)
{
    giveAngles({0}, {0, 90});
    record().Filename = "from the host.ies";
    GridEdit edit = table.newTable();
    edit.content->swap();
    edit.content->swap();
    EXPECT_EQ(record().Filename, "from the host.ies");
    EXPECT_EQ(record().NumVertAngles, 3);
}

TEST_F(CandelaUndo, saysTheMemoryThatItsContentTakes)
{
    const GridEdit edit = table.PasteCandelaTable("9\t8\n7\t6\n5\t4\n");
    EXPECT_GE(edit.content->bytes(), 6 * sizeof(CandelaCell));
    EXPECT_GE(table.newTable().content->bytes(), 6 * (sizeof(CandelaCell) + sizeof(double)));
}

/// The first table, built and taken back.
class CandelaFirstTable : public CandelaTest {
protected:
    /// Whether the record is as it was, once the table is there and once it is not.
    void expectAnglesKept()
    {
        const PhotometricRecord before = record();
        GridEdit edit = table.newTable();
        for (int turn = 0; turn < 2; ++turn) {
            edit.content->swap();
            EXPECT_TRUE(flags.GridReady);
            EXPECT_TRUE(record() == before);
            edit.content->swap();
            EXPECT_FALSE(flags.GridReady);
            EXPECT_TRUE(record() == before);
        }
    }
};

TEST_F(CandelaFirstTable, leadsBackToNoneAndLeavesTheRecordItsAngles)
{
    giveAngles({0, 90}, {0, 45, 90}, kTypeB);
    expectAnglesKept();
}

TEST_F(CandelaFirstTable, leavesTheRecordItsOnlyAngles)
{
    giveAngles({0, 90}, {}, kTypeB);
    expectAnglesKept();
}

}  // namespace
}  // namespace penwright::test
