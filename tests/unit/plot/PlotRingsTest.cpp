#include "plot/PlotRings.h"

#include <gtest/gtest.h>

#include <limits>

#include "platform/RunTimeError.h"

namespace penwright::test {
namespace {

struct RingCase {
    double largest;
    std::string figures;
};

class PlotRingFigures : public testing::TestWithParam<RingCase> {};

TEST_P(PlotRingFigures, areRoundUpToTheLargestValue)
{
    std::string figures;
    for (const PlotRing &ring : plotRings(GetParam().largest))
        figures += (figures.empty() ? "" : " ") + ring.text;
    EXPECT_EQ(figures, GetParam().figures);
}

INSTANTIATE_TEST_SUITE_P(Largest, PlotRingFigures,
                         testing::ValuesIn(std::vector<RingCase>{
                             {0, ""},
                             {-5, ""},
                             {std::numeric_limits<double>::quiet_NaN(), ""},
                             {1, "0.2 0.4 0.6 0.8 1"},
                             {5, "1 2 3 4 5"},
                             {5.01, "2 4 5.01"},
                             {1000, "200 400 600 800 1000"},
                             {1001, "500 1001"},
                             {1234.5, "500 1000 1235"},
                             {1100, "500 1100"},
                             {2000, "500 1000 1500 2000"},
                             {2600, "1000 2000 2600"},
                             {double{1234.56F}, "500 1000 1235"},
                             {999.96, "200 400 600 800 1000"},
                             {123.456, "50 100 123.5"},
                             {0.123456, "0.05 0.1 0.1235"},
                             {0.3, "0.1 0.2 0.3"},
                             {double{0.1F}, "0.02 0.04 0.06 0.08 0.1"},
                             {double{9999998.0F}, "2000000 4000000 6000000 8000000 9999998"},
                             {25000, "5000 10000 15000 20000 25000"},
                             {double{3e38F}, "1E+38 2E+38 3E+38"},
                         }));

TEST(PlotRings, theLastOneIsTheLargestValueItself)
{
    for (const double largest : {0.001, 7.0, 1234.5, 9e6})
        EXPECT_EQ(plotRings(largest).back().candela, largest);
}

TEST(PlotRings, thereAreTwoToFiveEvenForTheSmallestSingle)
{
    for (double largest = double{std::numeric_limits<float>::denorm_min()}; largest < 1e38; largest *= 1.37) {
        const auto rings = plotRings(largest);
        EXPECT_GE(rings.size(), 2U) << largest;
        EXPECT_LE(rings.size(), 5U) << largest;
    }
}

TEST(PlotRings, beyondTheSingleRangeIsOverflow)
{
    try {
        plotRings(1e300);
        FAIL();
    } catch (const RunTimeError &error) {
        EXPECT_EQ(error.number(), 6);
    }
}

}  // namespace
}  // namespace penwright::test
