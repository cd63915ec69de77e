#include "core/OneBased.h"
#include "core/PhotometricRecord.h"
#include "support/ErrorOf.h"

namespace penwright {
namespace {

TEST(OneBasedArray, countsFromOneAndRaisesNineOutside)
{
    OneBased<int> list{7, 8, 9};
    EXPECT_EQ(list(1), 7);
    EXPECT_EQ(list(3), 9);
    for (const int index : {-1, 0, 4})
        EXPECT_EQ(test::errorOf([&] { list(index); }), 9) << index;
}

TEST(OneBasedArray, resizeKeepsAndResetClears)
{
    OneBased<int> list{7, 8};
    list.resize(3);
    EXPECT_EQ(list, (OneBased<int>{7, 8, 0}));
    list.reset(2);
    EXPECT_EQ(list, (OneBased<int>{0, 0}));
    EXPECT_EQ(test::errorOf([&] { list.resize(-1); }), 9);
}

TEST(OneBasedTable, countsBothSubscriptsFromOne)
{
    OneBasedTable<int> table(2, 3);
    table(2, 3) = 6;
    table(1, 3) = 3;
    EXPECT_EQ(table(2, 3), 6);
    EXPECT_EQ(table(1, 3), 3);
    EXPECT_EQ(table(2, 1), 0);
    for (const auto &[row, column] : {std::pair{0, 1}, {1, 0}, {3, 1}, {1, 4}})
        EXPECT_EQ(test::errorOf([&, r = row, c = column] { table(r, c); }), 9) << row << "," << column;
    EXPECT_EQ(test::errorOf([&] { table.reset(-1, 2); }), 9);
}

TEST(OneBasedTable, handsOutARow)
{
    OneBasedTable<int> table(2, 3);
    table(2, 1) = 4;
    table(2, 3) = 6;
    const auto row = table.row(2);
    EXPECT_EQ(std::vector<int>(row.begin(), row.end()), (std::vector<int>{4, 0, 6}));
    EXPECT_TRUE(OneBasedTable<int>(2, 0).row(2).empty());
    for (const int missing : {0, 3})
        EXPECT_EQ(test::errorOf([&] { table.row(missing); }), 9) << missing;
}

TEST(Record, copiesAreByValue)
{
    PhotometricRecord first;
    first.Keywords = {"IESNA91"};
    first.VertAngles = {0, 90};
    first.Candela.reset(1, 2);
    first.RecordFlag = 5;
    PhotometricRecord second = first;
    EXPECT_EQ(second, first);
    second.Keywords(1) = "other";
    second.VertAngles(2) = 180;
    second.Candela(1, 1) = 3;
    EXPECT_EQ(first.Keywords(1), "IESNA91");
    EXPECT_EQ(first.VertAngles(2), 90);
    EXPECT_EQ(first.Candela(1, 1), 0);
    EXPECT_EQ(second.RecordFlag, 5);
}

TEST(Record, isEmptyWhenMade)
{
    const PhotometricRecord record;
    EXPECT_EQ(record.NumVertAngles, 0);
    EXPECT_EQ(record.NumHorzAngles, 0);
    EXPECT_TRUE(record.VertAngles.empty());
    EXPECT_TRUE(record.HorAngles.empty());
    EXPECT_EQ(record.Candela.rows(), 0);
}

}  // namespace
}  // namespace penwright
