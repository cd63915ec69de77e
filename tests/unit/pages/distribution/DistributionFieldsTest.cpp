#include "pages/distribution/DistributionFields.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "core/NumberText.h"

namespace penwright::test {
namespace {

/// Cells of texts or singles.
using Cells = AngleCells;

const std::string kStartB = "Vertical angles must start at -90 or 0\r\n";
const std::string kEndB = "Vertical angles must end at 90\r\n";
const std::string kStartC = "Vertical angles must start at 0 or 90\r\n";
const std::string kEndC = "Vertical angles must end at 90 or 180\r\n";
const std::string kHorzStartB = "Horizontal angles must start at -90 or 0\r\n";
const std::string kHorzEndB = "Horizontal angles must end at 90 \r\n";
const std::string kHorzStartC = "Horizontal angles must start at 0 or 90\r\n";
const std::string kHorzEndC = "Horizontal angles must end at 0, 90, 180 or 360\r\n";

std::string notANumber(const std::string &axis, int cell)
{
    return axis + ": cell " + std::to_string(cell) + " is empty or not a number\r\n";
}
std::string order(const std::string &axis, int cell)
{
    return axis + ": Angles not in ascending order, " + std::to_string(cell) + " > " + std::to_string(cell + 1) +
           "\r\n";
}
FaultPlace vert(int cell)
{
    return {.field = kVerticalGridField, .row = 1, .column = cell - 1};
}
FaultPlace horz(int cell)
{
    return {.field = kHorizontalGridField, .row = 1, .column = cell - 1};
}

struct CheckCase {
    std::string name;
    std::int16_t type;
    Cells vertical;
    Cells horizontal;
    std::string lines;
    std::optional<FaultPlace> firstFault;
};

void PrintTo(const CheckCase &check, std::ostream *out)
{
    *out << check.name;
}

class DistributionCheck : public testing::TestWithParam<CheckCase> {};

const Cells kOne{0.0F};
const Cells kGoodB{"-90", "0", "90"};

INSTANTIATE_TEST_SUITE_P(
    TypeCVertical, DistributionCheck,
    testing::Values(
        CheckCase{"downlight", kTypeC, {0.0F, 45.0F, 90.0F}, kOne, "", {}},
        CheckCase{"indirect", kTypeC, {"90", "180"}, kOne, "", {}},
        CheckCase{"texts as numbers", kTypeC, {" 0.0", "+45", "1.8e2"}, kOne, "", {}},
        CheckCase{"negative zero", kTypeC, {"-0", "90"}, kOne, "", {}},
        CheckCase{"start", kTypeC, {"10", "90"}, kOne, kStartC, vert(1)},
        CheckCase{"start of type B", kTypeC, {"-90", "90"}, kOne, kStartC, vert(1)},
        CheckCase{"end", kTypeC, {"0", "45", "45"}, kOne, kEndC, vert(3)},
        CheckCase{"nearly the end", kTypeC, {"0", "90.0000001"}, kOne, kEndC, vert(2)},
        CheckCase{"falling", kTypeC, {"0", "90", "60", "180"}, kOne, order("Vert", 2), vert(3)},
        CheckCase{"equal pass", kTypeC, {0.0F, "0", 0.0F, 90.0F, "90"}, kOne, "", {}},
        CheckCase{"equal as singles", kTypeC, {"0", "45.00000001", "45", "90"}, kOne, "", {}},
        CheckCase{"single below text", kTypeC, {"0", 50.0F, "49.5", 90.0F}, kOne, order("Vert", 2), vert(3)},
        CheckCase{"compared as numbers, not as texts", kTypeC, {"0", "9", "10", "90"}, kOne, "", {}},
        CheckCase{
            "blank between", kTypeC, {"0", " ", "90"}, kOne, notANumber("Vert", 2) + notANumber("Vert", 3), vert(2)},
        CheckCase{"blank first",
                  kTypeC,
                  {" ", "45", "90"},
                  kOne,
                  kStartC + notANumber("Vert", 1) + notANumber("Vert", 2),
                  vert(1)},
        CheckCase{"word last", kTypeC, {"0", "45", "ninety"}, kOne, kEndC + notANumber("Vert", 3), vert(3)},
        CheckCase{"empty text", kTypeC, {"0", "", "90"}, kOne, notANumber("Vert", 2) + notANumber("Vert", 3), vert(2)},
        CheckCase{"comma", kTypeC, {"0", "1,5", "90"}, kOne, notANumber("Vert", 2) + notANumber("Vert", 3), vert(2)},
        CheckCase{"freshly counted",
                  kTypeC,
                  {" ", " ", " "},
                  kOne,
                  kStartC + kEndC + notANumber("Vert", 1) + notANumber("Vert", 2) + notANumber("Vert", 3),
                  vert(1)},
        CheckCase{"one cell", kTypeC, {"90"}, kOne, "", {}}, CheckCase{"one zero", kTypeC, {"0"}, kOne, kEndC, vert(1)},
        CheckCase{"one blank", kTypeC, {" "}, kOne, kStartC + kEndC + notANumber("Vert", 1), vert(1)},
        CheckCase{"one beyond a single", kTypeC, {"1e39"}, kOne, kStartC + kEndC, vert(1)}));

INSTANTIATE_TEST_SUITE_P(
    TypeCHorizontal, DistributionCheck,
    testing::Values(CheckCase{"to 360", kTypeC, {"0", "90"}, {"0", "360"}, "", {}},
                    CheckCase{"from 90", kTypeC, {"0", "90"}, {"90", "180"}, "", {}},
                    CheckCase{"to 270", kTypeC, {"0", "90"}, {"0", "270"}, kHorzEndC, horz(2)},
                    CheckCase{"from 180", kTypeC, {"0", "90"}, {"180", "360"}, kHorzStartC, horz(1)},
                    CheckCase{"one text", kTypeC, {"0", "90"}, {"0"}, "", {}},
                    CheckCase{"one of 45", kTypeC, {"0", "90"}, {"45"}, kHorzStartC + kHorzEndC, horz(1)},
                    CheckCase{"down to zero", kTypeC, {"0", "90"}, {"90", "0"}, order("Horz", 1), horz(2)},
                    CheckCase{"blanks",
                              kTypeC,
                              {"0", "90"},
                              {" ", " "},
                              kHorzStartC + kHorzEndC + notANumber("Horz", 1) + notANumber("Horz", 2),
                              horz(1)}));

INSTANTIATE_TEST_SUITE_P(
    TypeB, DistributionCheck,
    testing::Values(CheckCase{"whole", kTypeB, kGoodB, {"0", "90"}, "", {}},
                    CheckCase{"to 180", kTypeB, {"0", "90", "180"}, kGoodB, kEndB, vert(3)},
                    CheckCase{"from 90", kTypeB, {"90"}, kGoodB, kStartB, vert(1)},
                    CheckCase{"word last", kTypeB, {"0", "x"}, kGoodB, kEndB + notANumber("Vert", 2), vert(2)},
                    CheckCase{"horizontal to 180", kTypeB, kGoodB, {"-90", "180"}, kHorzEndB, horz(2)},
                    CheckCase{"horizontal from 10", kTypeB, kGoodB, {"10", "90"}, kHorzStartB, horz(1)},
                    CheckCase{"horizontal one", kTypeB, kGoodB, kOne, kHorzEndB, horz(1)}));

INSTANTIATE_TEST_SUITE_P(Both, DistributionCheck,
                         testing::Values(CheckCase{"every rule, type C",
                                                   kTypeC,
                                                   {"10", "5", "x"},
                                                   {"10", "5", ""},
                                                   kStartC + kEndC + order("Vert", 1) + notANumber("Vert", 3) +
                                                       kHorzStartC + kHorzEndC + order("Horz", 1) +
                                                       notANumber("Horz", 3),
                                                   vert(1)},
                                         CheckCase{"every rule, type B",
                                                   kTypeB,
                                                   {"x", "10", "5"},
                                                   {"x", "10", "5"},
                                                   kStartB + kEndB + notANumber("Vert", 1) + notANumber("Vert", 2) +
                                                       order("Vert", 2) + kHorzStartB + kHorzEndB +
                                                       notANumber("Horz", 1) + notANumber("Horz", 2) + order("Horz", 2),
                                                   vert(1)}));

const std::string kMissing =
    "Vertical and Horizontal values needed before Next screen.\r\nAll fields not complete.\r\n";

INSTANTIATE_TEST_SUITE_P(
    Missing, DistributionCheck,
    testing::Values(CheckCase{"both", kTypeC, {}, {}, kMissing, FaultPlace{.field = kVerticalListField}},
                    CheckCase{"vertical", kTypeC, {}, {"x"}, kMissing, FaultPlace{.field = kVerticalListField}},
                    CheckCase{"horizontal", kTypeB, {"x"}, {}, kMissing, FaultPlace{.field = kHorizontalListField}}));

TEST_P(DistributionCheck, addsItsLinesInOrder)
{
    const CheckCase &check = GetParam();
    WarningList list;
    checkDistribution({check.type, check.vertical, check.horizontal}, list);
    EXPECT_EQ(list.text(), check.lines);
    EXPECT_EQ(list.firstFault(), check.firstFault);
}

TEST(DistributionCheckEnds, acceptEveryAllowedAngleAndNoOther)
{
    struct {
        std::int16_t type;
        std::vector<double> start, verticalEnd, horizontalEnd;
    } const kRules[]{{kTypeB, {-90, 0}, {90}, {90}}, {kTypeC, {0, 90}, {90, 180}, {0, 90, 180, 360}}};
    const auto accepts = [](std::int16_t type, const Cells &vertical, const Cells &horizontal,
                            const std::string &warning) {
        WarningList list;
        checkDistribution({type, vertical, horizontal}, list);
        return list.text().find(warning) == std::string::npos;
    };
    for (const auto &rules : kRules)
        for (double angle = -360; angle <= 720; angle += 22.5) {
            const auto isIn = [&](const std::vector<double> &allowed) {
                return std::find(allowed.begin(), allowed.end(), angle) != allowed.end();
            };
            for (const AngleCell &cell : {AngleCell(static_cast<float>(angle)), AngleCell(generalText(angle))}) {
                const Cells first{cell, "1000"};
                const Cells last{"-1000", cell};
                EXPECT_EQ(accepts(rules.type, first, kGoodB, "Vertical angles must start"), isIn(rules.start));
                EXPECT_EQ(accepts(rules.type, last, kGoodB, "Vertical angles must end"), isIn(rules.verticalEnd));
                EXPECT_EQ(accepts(rules.type, kGoodB, first, "Horizontal angles must start"), isIn(rules.start));
                EXPECT_EQ(accepts(rules.type, kGoodB, last, "Horizontal angles must end"), isIn(rules.horizontalEnd));
            }
        }
}

struct OverflowCase {
    Cells vertical;
    Cells horizontal;
    std::string description;
    FaultPlace place;
};

class DistributionOverflow : public testing::TestWithParam<OverflowCase> {};

INSTANTIATE_TEST_SUITE_P(
    Cells, DistributionOverflow,
    testing::Values(OverflowCase{{"0", "1", "1e39", "90"}, kOne, "Vert: cell 3: Overflow", vert(3)},
                    OverflowCase{{"0", "-1e39", "90"}, kOne, "Vert: cell 2: Overflow", vert(2)},
                    OverflowCase{{"0", "90"}, {"0", "1e39", "360"}, "Horz: cell 2: Overflow", horz(2)}));

TEST_P(DistributionOverflow, isRaisedUnderTheNameOfTheCell)
{
    WarningList list;
    try {
        checkDistribution({kTypeC, GetParam().vertical, GetParam().horizontal}, list);
        FAIL() << "nothing was raised";
    } catch (const RunTimeError &error) {
        EXPECT_EQ(error.number(), 6);
        EXPECT_EQ(error.description(), GetParam().description);
    }
    EXPECT_EQ(list.firstFault(), GetParam().place);
}

TEST(DistributionStore, fillsTheFiveFieldsAndNoOther)
{
    const Cells vertical{"0", " 45.5", 90.0F};
    const Cells horizontal{0.0F, "2.25e1"};
    for (const std::int16_t type : {kTypeC, kTypeB}) {
        PhotometricRecord expected;
        expected.NumLamps = 3;
        expected.PhotometricType = type;
        expected.NumVertAngles = 3;
        expected.VertAngles = {0, 45.5F, 90};
        expected.NumHorzAngles = 2;
        expected.HorAngles = {0, 22.5F};
        PhotometricRecord record;
        record.NumLamps = 3;
        record.VertAngles = {1, 2, 3, 4, 5};
        record.HorAngles = {7};
        storeDistribution({type, vertical, horizontal}, record);
        EXPECT_EQ(record, expected);
    }
}

TEST(DistributionStore, changesNothingWhenACellCannotBeConverted)
{
    const Cells good{"0", "90"};
    const Cells bad{"0", "1e39"};
    PhotometricRecord before;
    before.VertAngles = {1, 2};
    before.NumVertAngles = 2;
    PhotometricRecord record = before;
    EXPECT_THROW(storeDistribution({kTypeB, good, bad}, record), RunTimeError);
    EXPECT_EQ(record, before);
    EXPECT_THROW(storeDistribution({kTypeB, bad, good}, record), RunTimeError);
    EXPECT_EQ(record, before);
}

PhotometricRecord recordWith(std::int16_t type, const OneBased<float> &vertical, const OneBased<float> &horizontal)
{
    PhotometricRecord record;
    record.PhotometricType = type;
    record.NumVertAngles = static_cast<std::int16_t>(vertical.size());
    record.NumHorzAngles = static_cast<std::int16_t>(horizontal.size());
    record.VertAngles = vertical;
    record.HorAngles = horizontal;
    return record;
}

TEST(FieldsOfARecord, areItsTypeAndAsManyAnglesAsItCounts)
{
    PhotometricRecord record = recordWith(kTypeB, {-90, 0, 90}, {0, 90, 91});
    record.NumHorzAngles = 2;
    const auto fields = fieldsOf(record);
    ASSERT_TRUE(fields);
    EXPECT_EQ(fields->photometricType, kTypeB);
    EXPECT_EQ(fields->vertical, (Cells{-90.0F, 0.0F, 90.0F}));
    EXPECT_EQ(fields->horizontal, (Cells{0.0F, 90.0F}));
}

TEST(FieldsOfARecord, areOfTypeCWhereItIsNoneOfTheTwo)
{
    for (const std::int16_t type : {std::int16_t{0}, std::int16_t{3}, kTypeC})
        EXPECT_EQ(fieldsOf(recordWith(type, {0, 90}, {0})).value().photometricType, kTypeC) << type;
}

TEST(FieldsOfARecord, areNoneWithoutAListThatThePageCanShow)
{
    const OneBased<float> most(AngleList::kMostAngles);
    EXPECT_TRUE(fieldsOf(recordWith(kTypeC, most, {0})));
    EXPECT_FALSE(fieldsOf(recordWith(kTypeC, OneBased<float>(AngleList::kMostAngles + 1), {0})));
    EXPECT_FALSE(fieldsOf(recordWith(kTypeC, {0, 90}, OneBased<float>(AngleList::kMostAngles + 1))));
    EXPECT_FALSE(fieldsOf(recordWith(kTypeC, {}, {0})));
    EXPECT_FALSE(fieldsOf(recordWith(kTypeC, {0, 90}, {})));
    PhotometricRecord lacking = recordWith(kTypeC, {0, 90}, {0});
    lacking.NumVertAngles = 3;
    EXPECT_FALSE(fieldsOf(lacking));
    lacking.NumVertAngles = -1;
    EXPECT_FALSE(fieldsOf(lacking));
}

TEST(TwoDistributions, areTheSameByTypeAndByTheAnglesAsSingles)
{
    const DistributionFields one{kTypeC, {"0", 45.0F, "9e1"}, {"0"}};
    EXPECT_TRUE(areSameDistribution(one, {kTypeC, {0.0F, "45.00000001", 90.0F}, {" 0.0"}}));
    EXPECT_FALSE(areSameDistribution(one, {kTypeB, one.vertical, one.horizontal}));
    EXPECT_FALSE(areSameDistribution(one, {kTypeC, {"0", "45", "91"}, one.horizontal}));
    EXPECT_FALSE(areSameDistribution(one, {kTypeC, one.vertical, {"0", "90"}}));
}

}  // namespace
}  // namespace penwright::test
