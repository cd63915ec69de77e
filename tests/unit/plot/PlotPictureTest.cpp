#include "plot/PlotPicture.h"

#include <gtest/gtest.h>

#include "platform/RunTimeError.h"
#include "support/PlotTables.h"

namespace penwright::test {
namespace {

PlotTableCase lobe()
{
    return plotTable(
        "", kTypeC, {0, 90}, anglesTo(90, 5), [](double, double v) { return 1000 * cosine(v); }, 0, 60);
}

TEST(PlotPicture, isCurvesRingsAndWordsOfOneTable)
{
    const PlotTableCase table = lobe();
    const PlotPicture picture = plotPicture(table.record, table.cells, 0, 60);
    EXPECT_EQ(picture.curves.largest(), 1000);
    ASSERT_EQ(picture.rings.size(), 5U);
    EXPECT_EQ(picture.rings.back().text, "1000");
    EXPECT_EQ(picture.words,
              "Vertical plane through horizontal angle 0: largest 1000 candela at 0 degrees; "
              "horizontal cone through vertical angle 60: largest 500 candela at 0 degrees.");
}

TEST(PlotPicture, ofARecordShowsItsOwnCandela)
{
    PlotTableCase table = lobe();
    table.record.Candela.reset(2, table.record.NumVertAngles);
    table.record.Candela(1, 3) = 700;
    EXPECT_EQ(plotPicture(table.record, 0, 10).words,
              "Vertical plane through horizontal angle 0: largest 700 candela at 10 degrees; "
              "horizontal cone through vertical angle 10: largest 700 candela at 0 degrees.");
    table.record.Candela.reset(2, 3);
    EXPECT_THROW(plotPicture(table.record, 0, 10), RunTimeError);
}

TEST(PlotPicture, ofNothingIsTheEmptyGridOfTypeC)
{
    const PlotPicture picture;
    EXPECT_TRUE(picture.curves.typeC);
    EXPECT_TRUE(picture.rings.empty());
    EXPECT_EQ(picture.words, "");
}

}  // namespace
}  // namespace penwright::test
