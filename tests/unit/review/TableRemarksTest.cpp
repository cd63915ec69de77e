#include "RemarkTest.h"

namespace penwright::test {
namespace {

class TableRemarks : public testing::TestWithParam<RuleCase> {};

TEST_P(TableRemarks, areThese)
{
    expectRemarks(GetParam());
}

using Angles = std::vector<float>;

double lobe(double, double v)
{
    return std::max(0.0, 2500 * cosine(v));
}

Change table(std::int16_t type, const Angles &horizontal, const Angles &vertical, const Solid &solid = lobe)
{
    return [=](PhotometricRecord &record) { record = withTable(record, type, horizontal, vertical, solid); };
}

/// One plane of values at steps of 5 degrees.
Change plane(const std::vector<double> &values)
{
    return [=](PhotometricRecord &record) {
        record = withTable(record, kTypeC, {0}, evenAngles(static_cast<int>(values.size()), 90), [&](double, double v) {
            return values[static_cast<std::size_t>(std::lround(v * (double(values.size()) - 1) / 90))];
        });
    };
}

constexpr RecordPlace vertical(int i)
{
    return {RecordField::VertAngles, i};
}

constexpr RecordPlace horizontal(int i)
{
    return {RecordField::HorAngles, i};
}

constexpr RecordPlace cell(int h, int v)
{
    return {RecordField::Candela, h, v};
}

INSTANTIATE_TEST_SUITE_P(AngleList, TableRemarks,
                         testing::ValuesIn(std::vector<RuleCase>{
                             {"from 90",
                              RemarkRule::AngleList,
                              table(kTypeC, {90, 180}, {0, 90}),
                              {{"The horizontal list should begin at 0 and rise: it begins at 90.", horizontal(1)}}},
                             {"from 0", RemarkRule::AngleList, table(kTypeC, {0, 90}, {0, 90}), {}},
                             {"twice",
                              RemarkRule::AngleList,
                              table(kTypeC, {0, 45, 45, 90}, {0, 22.5F, 22.5F, 90}),
                              {{"The vertical list should rise: it has 22.5 twice.", vertical(3)},
                               {"The horizontal list should rise: it has 45 twice.", horizontal(3)}}},
                             {"type B ends at 90", RemarkRule::AngleList, table(kTypeB, {0, 90}, {-90, 90}), {}},
                             {"type B twice",
                              RemarkRule::AngleList,
                              table(kTypeB, {-90, 0, 0, 90}, {-90, 90}),
                              {{"The horizontal list should rise: it has 0 twice.", horizontal(3)}}},
                         }));

/// 1000 everywhere but a share more in the last column's second value.
Change lastColumn(double share, float last = 360)
{
    return table(kTypeC, {0, 180, last}, {0, 45, 90},
                 [=](double h, double v) { return h == double{last} && v == 45 ? 1000 * (1 + share) : 1000; });
}

INSTANTIATE_TEST_SUITE_P(FirstAndLastPlane, TableRemarks,
                         testing::ValuesIn(std::vector<RuleCase>{
                             {"another value",
                              RemarkRule::FirstAndLastPlane,
                              lastColumn(-0.2),
                              {{"Columns 0 and 360 differ at V 45: 1,000 and 800.", cell(3, 2)}}},
                             {"just above",
                              RemarkRule::FirstAndLastPlane,
                              lastColumn(-0.0051),
                              {{"Columns 0 and 360 differ at V 45: 1,000 and 994.9.", cell(3, 2)}}},
                             {"just below", RemarkRule::FirstAndLastPlane, lastColumn(-0.0049), {}},
                             {"half around", RemarkRule::FirstAndLastPlane, lastColumn(-0.2, 270), {}},
                         }));

Change stopping(double value, const Angles &vertical, std::int16_t type = kTypeC)
{
    return table(type, {0, 45, 90}, vertical, [=](double h, double v) { return v != 90 ? 1000 : h == 45 ? value : 0; });
}

INSTANTIATE_TEST_SUITE_P(
    StopsAtHorizon, TableRemarks,
    testing::ValuesIn(std::vector<RuleCase>{
        {"downwards",
         RemarkRule::StopsAtHorizon,
         stopping(300, {0, 45, 90}),
         {{"Light stops abruptly at 90 degrees, with 300 at H 45: is the other half missing?", cell(2, 3)}}},
        {"upwards",
         RemarkRule::StopsAtHorizon,
         stopping(300, {90, 180}),
         {{"Light stops abruptly at 90 degrees, with 300 at H 45: is the other half missing?", cell(2, 1)}}},
        {"just above",
         RemarkRule::StopsAtHorizon,
         stopping(20.1, {0, 90}),
         {{"Light stops abruptly at 90 degrees, with 20.1 at H 45: is the other half missing?", cell(2, 2)}}},
        {"just below", RemarkRule::StopsAtHorizon, stopping(19.9, {0, 90}), {}},
        {"both halves", RemarkRule::StopsAtHorizon, stopping(300, {0, 90, 180}), {}},
        {"type B", RemarkRule::StopsAtHorizon, stopping(300, {-90, 90}, kTypeB), {}},
    }));

Change pole(float angle, double odd)
{
    return table(kTypeB, {-90, 0, 90}, {-90, 0, 90},
                 [=](double h, double v) { return h == double{angle} ? (v == 0 ? odd : 5) : 100; });
}

INSTANTIATE_TEST_SUITE_P(
    TypeBList, TableRemarks,
    testing::ValuesIn(std::vector<RuleCase>{
        {"upper half",
         RemarkRule::TypeBList,
         table(kTypeB, {-90, 90}, {0, 90}, [](double, double) { return 5; }),
         {{"The vertical list begins at 0: give -90 to 90.", vertical(1)}}},
        {"right half", RemarkRule::TypeBList, table(kTypeB, {0, 90}, {-90, 90}, [](double, double) { return 5; }), {}},
        {"right pole",
         RemarkRule::TypeBList,
         pole(90, 12),
         {{"Column 90 must hold one value; it holds 5 and 12.", cell(3, 2)}}},
        {"left pole",
         RemarkRule::TypeBList,
         pole(-90, 12),
         {{"Column -90 must hold one value; it holds 5 and 12.", cell(1, 2)}}},
        {"pole of three values",
         RemarkRule::TypeBList,
         table(kTypeB, {-90, 0, 90}, {-90, 0, 90}, [](double h, double v) { return h == 90 ? 12 + v / 30 : 100; }),
         {{"Column 90 must hold one value; it holds 9 and 12.", cell(3, 2)}}},
        {"constant", RemarkRule::TypeBList, pole(90, 5), {}},
        {"no pole", RemarkRule::TypeBList, pole(0, 12), {}},
        {"type C", RemarkRule::TypeBList, table(kTypeC, {0, 90}, {0, 90}), {}},
    }));

INSTANTIATE_TEST_SUITE_P(Spike, TableRemarks,
                         testing::ValuesIn(std::vector<RuleCase>{
                             {"a digit too many",
                              RemarkRule::Spike,
                              plane({1000, 900, 8000, 600, 300, 0, 0}),
                              {{"8,000 at V 30, H 0 stands out from its neighbours: a slip?", cell(1, 3)}}},
                             {"just above",
                              RemarkRule::Spike,
                              plane({1000, 300, 901, 300, 0}),
                              {{"901 at V 45, H 0 stands out from its neighbours: a slip?", cell(1, 3)}}},
                             {"just below on the left", RemarkRule::Spike, plane({1000, 300.4, 901, 300, 0}), {}},
                             {"just below on the right", RemarkRule::Spike, plane({1000, 300, 901, 300.4, 0}), {}},
                             {"small", RemarkRule::Spike, plane({1000, 800, 2, 49.9, 0, 0}), {}},
                             {"not so small",
                              RemarkRule::Spike,
                              plane({1000, 800, 2, 50.1, 0, 0}),
                              {{"50.1 at V 54, H 0 stands out from its neighbours: a slip?", cell(1, 4)}}},
                             {"at the ends", RemarkRule::Spike, plane({8000, 500, 400, 300, 2000}), {}},
                         }));

Change beam(double half, const Angles &vertical)
{
    return table(kTypeC, {0}, vertical, [=](double, double v) { return std::max(0.0, 1000 * (1 - v / half / 2)); });
}

INSTANTIATE_TEST_SUITE_P(
    CoarseSteps, TableRemarks,
    testing::ValuesIn(std::vector<RuleCase>{
        {"narrow",
         RemarkRule::CoarseSteps,
         table(kTypeC, {0}, anglesTo(90, 5), [](double, double v) { return v == 0   ? 10000
                                                                           : v == 5 ? 3750
                                                                                    : 0; }),
         {{"The beam is 8 degrees wide, the table has steps of 5: measure finer there.", vertical(1)}}},
        {"just narrow",
         RemarkRule::CoarseSteps,
         beam(9.9, anglesTo(90, 10)),
         {{"The beam is 19.8 degrees wide, the table has steps of 10: measure finer there.", vertical(1)}}},
        {"just wide", RemarkRule::CoarseSteps, beam(10.1, anglesTo(90, 10)), {}},
        {"narrow and fine", RemarkRule::CoarseSteps, beam(4, anglesTo(90, 1)), {}},
        {"fine at the beam alone", RemarkRule::CoarseSteps, beam(4, {0, 1, 2, 3, 4, 5, 10, 30, 90}), {}},
        {"type B",
         RemarkRule::CoarseSteps,
         table(kTypeB, {-90, 0, 90}, anglesTo(90, 10, -90), [](double, double v) { return v == 20 ? 100 : 0; }),
         {{"The beam is 10 degrees wide, the table has steps of 10: measure finer there.", vertical(12)}}},
    }));

const std::string kQuestion = ": was a sign between thousands read as a decimal point?";

INSTANTIATE_TEST_SUITE_P(
    ThousandsSign, TableRemarks,
    testing::ValuesIn(std::vector<RuleCase>{
        {"alone",
         RemarkRule::ThousandsSign,
         plane({998, double{2.481F}, 1300, 950, 100, 20, 0}),
         {{"2.481 at V 15, H 0 stands beside 998" + kQuestion, cell(1, 2)}}},
        {"alone, without decimals",
         RemarkRule::ThousandsSign,
         plane({998, 2, 1300, 950, 100, 20, 0}),
         {{"2 at V 15, H 0 stands beside 998" + kQuestion, cell(1, 2)}}},
        {"just too low neighbours", RemarkRule::ThousandsSign, plane({1300, double{2.481F}, 899, 700, 100, 20, 0}), {}},
        {"just not a hundredth", RemarkRule::ThousandsSign, plane({1300, 9.1, 905, 700, 100, 20, 0}), {}},
        {"just a hundredth",
         RemarkRule::ThousandsSign,
         plane({1300, 9, 905, 700, 100, 20, 0}),
         {{"9 at V 15, H 0 stands beside 1,300" + kQuestion, cell(1, 2)}}},
        {"four decimals", RemarkRule::ThousandsSign, plane({1300, double{2.4815F}, 998, 700, 100, 20, 0}), {}},
        {"a gap", RemarkRule::ThousandsSign, plane({1300, 0, 998, 700, 100, 20, 0}), {}},
        {"the peak lost its thousands",
         RemarkRule::ThousandsSign,
         plane({double{2.48F}, double{2.42F}, double{2.245F}, double{1.97F}, double{1.223F}, 818, 446, 140, 20, 0}),
         {{"1.223 at V 40, H 0 stands beside 818" + kQuestion, cell(1, 5)}}},
        {"a batwing lost its thousands",
         RemarkRule::ThousandsSign,
         plane({900, double{1.05F}, double{1.2F}, 960, 500, 120, 0}),
         {{"1.05 at V 15, H 0 stands beside 900" + kQuestion, cell(1, 2)}}},
        {"goes on just so",
         RemarkRule::ThousandsSign,
         plane({900, 3.5, 3.25, 920, 500, 120, 0}),
         {{"3.5 at V 15, H 0 stands beside 900" + kQuestion, cell(1, 2)}}},
        {"just does not go on", RemarkRule::ThousandsSign, plane({900, 3.75, 3.5, 920, 500, 120, 0}), {}},
        {"all below a hundred",
         RemarkRule::ThousandsSign,
         plane({900, 1.5, 99.5, 1.25, 920, 120, 0}),
         {{"1.5 at V 15, H 0 stands beside 900" + kQuestion, cell(1, 2)}}},
        {"a hundred and more between", RemarkRule::ThousandsSign, plane({900, 1.5, 100.5, 1.25, 920, 120, 0}), {}},
        {"with thousands elsewhere",
         RemarkRule::ThousandsSign,
         plane({double{2.48F}, double{2.42F}, 818, 446, 1001, 20, 0}),
         {}},
        {"whole low values", RemarkRule::ThousandsSign, plane({2, 2, 2, 1, 818, 446, 140, 20, 0}), {}},
        {"a sharp cutoff", RemarkRule::ThousandsSign, plane({900, 890, 870, 600, 5.5, 0.8, 0}), {}},
        {"a low table", RemarkRule::ThousandsSign, plane({12.5, 11.25, 8.125, 4.5, 1.25, 0}), {}},
    }));

}  // namespace
}  // namespace penwright::test
