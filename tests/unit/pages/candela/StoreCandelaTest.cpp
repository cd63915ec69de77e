#include "pages/candela/StoreCandela.h"

#include "unit/pages/candela/CandelaTest.h"

namespace penwright::test {
namespace {

using StoreCandela = CandelaTest;

TEST_F(StoreCandela, storesSinglesWidened)
{
    giveAngles({0, 90}, {0, 45});
    OneBasedTable<CandelaCell> cells(2, 2);
    cells(1, 1) = 12.3F;
    cells(2, 1) = 16777215.0F;
    cells(1, 2) = 0.0F;
    cells(2, 2) = 0.1;
    record().Candela.reset(5, 5);
    storeCandela(cells, record());
    OneBasedTable<double> expected(2, 2);
    expected(1, 1) = 12.300000190734863;
    expected(2, 1) = 16777215;
    expected(2, 2) = 0.10000000149011612;
    EXPECT_EQ(record().Candela, expected);
}

TEST_F(StoreCandela, storesNothingWhenAValueCannotBe)
{
    giveAngles({0}, {0, 90});
    OneBasedTable<CandelaCell> cells(1, 2);
    cells(1, 1) = 1.0F;
    record().Candela.reset(3, 3);
    const auto before = record().Candela;
    cells(1, 2) = 1E39;
    EXPECT_THROW(storeCandela(cells, record()), RunTimeError);
    cells(1, 2) = CandelaCell();
    EXPECT_THROW(storeCandela(cells, record()), RunTimeError);
    EXPECT_EQ(record().Candela, before);
}

}  // namespace
}  // namespace penwright::test
