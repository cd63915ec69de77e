#include "support/AllocationLimit.h"
#include "support/HeldGrid.h"
#include "unit/pages/candela/CandelaTest.h"

namespace penwright::test {
namespace {

using HeldCandela = CandelaTest;

TEST_F(HeldCandela, tellsBlanksSinglesAndDoublesApart)
{
    build({0, 90}, {0, 45, 90});
    write(table, 1, 1, "0.1");
    lsbStart();
    write(table, 2, 2, "0.1");
    const auto before = table.CandelaCells();
    ASSERT_TRUE(std::holds_alternative<double>(before(1, 1)));
    ASSERT_TRUE(std::holds_alternative<float>(before(2, 2)));
    const auto held = table.held();
    apply(table, table.PasteCandelaTable("1\t2\n3\t4\n5\t6\n"));
    EXPECT_TRUE(bringBack(table, held()));
    EXPECT_EQ(table.CandelaCells(), before);
    EXPECT_EQ(work().Candela(1, 1), double{0.1F});
}

TEST_F(HeldCandela, bringsBlanksBack)
{
    build({0}, {0, 90});
    const auto held = table.held();
    apply(table, table.PasteCandelaTable("1\n2\n"));
    EXPECT_TRUE(bringBack(table, held()));
    EXPECT_EQ(table.read(1, 1), " ");
    EXPECT_EQ(work().Candela(1, 1), 0);
}

// The counts may have been changed since, as Back and Next do: they keep what fits, too.
TEST_F(HeldCandela, bringsWhatFitsIntoATableOfAnotherSize)
{
    build({0, 90}, {0, 90});
    const std::pair<const char *, const char *> rows[]{{"9\n", "9\t2\r\n3\t4\r\n"},
                                                       {"9\t8\t7\n", "9\t8\r\n3\t4\r\n"},
                                                       {"9\n8\n7\n", "9\t2\r\n8\t4\r\n"},
                                                       {"9\t8\n7\t6\n5\t4\n", "9\t8\r\n7\t6\r\n"},
                                                       {"", "1\t2\r\n3\t4\r\n"}};
    for (const auto &[held, expected] : rows) {
        apply(table, table.PasteCandelaTable("1\t2\n3\t4\n"));
        EXPECT_TRUE(bringBack(table, held)) << held;
        EXPECT_EQ(table.CopyCandelaTable(), expected) << held;
    }
}

TEST_F(HeldCandela, isRefusedWhereItIsNone)
{
    build({0, 90}, {0, 90});
    apply(table, table.PasteCandelaTable("1\t2\n3\t4\n"));
    for (const char *text :
         {"1\t2\n3\n", "1\n2\t3\n", "1\t2\n3\tx\n", "1\t2\n3\t4d5\n", "1\t2\n3\tinf\n", "1\t2\n3\t4"})
        EXPECT_FALSE(bringBack(table, text)) << text;
    EXPECT_EQ(table.CopyCandelaTable(), "1\t2\r\n3\t4\r\n");
}

// A damaged text announces in few bytes what no memory holds.
TEST_F(HeldCandela, takesNoMemoryForCellsThatItDoesNotHave)
{
    build({0, 90}, {0, 90});
    apply(table, table.PasteCandelaTable("1\t2\n3\t4\n"));
    const AllocationLimit tenMegabytes(10'000'000);
    EXPECT_FALSE(bringBack(table, std::string(30'000, '\t') + std::string(30'000, '\n')));
    EXPECT_EQ(table.CopyCandelaTable(), "1\t2\r\n3\t4\r\n");
}

TEST_F(HeldCandela, isNothingBeforeThereIsATable)
{
    build({0}, {0, 90});
    flags = {};
    EXPECT_EQ(table.held()(), "");
    EXPECT_TRUE(bringBack(table, ""));
    EXPECT_FALSE(bringBack(table, "1\n2\n"));
}

}  // namespace
}  // namespace penwright::test
