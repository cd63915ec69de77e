#include "pages/distribution/PredefinedAngles.h"

#include <gtest/gtest.h>

#include <map>
#include <vector>

#include "core/PhotometricRecord.h"
#include "pages/distribution/AngleList.h"
#include "support/GridEdits.h"
#include "unit/pages/distribution/AxisLetters.h"

namespace penwright::test {
namespace {

struct EntryCase {
    std::int16_t type;
    AngleAxis axis;
    std::string text;
    int count;
    double first;
    double last;
    double step;
};

void PrintTo(const EntryCase &entry, std::ostream *out)
{
    *out << entry.text << (entry.axis == AngleAxis::Vertical ? ", vertical" : ", horizontal");
}

const std::vector<EntryCase> kEntries{
    {kTypeB, V, "10, 0 to 90, 10 degree increments", 10, 0, 90, 10},
    {kTypeB, V, "19, 0 to 90, 5 degree increments", 19, 0, 90, 5},
    {kTypeB, V, "37, 0 to 90, 2.5 degree increments", 37, 0, 90, 2.5},
    {kTypeB, V, "19, -90 to 90, 10 degree increments", 19, -90, 90, 10},
    {kTypeB, V, "37, -90 to 90, 5 degree increments", 37, -90, 90, 5},
    {kTypeB, V, "73, -90 to 90, 2.5 degree increments", 73, -90, 90, 2.5},
    {kTypeB, H, "10, 0 to 90, 10 degree increments", 10, 0, 90, 10},
    {kTypeB, H, "19, 0 to 90, 5 degree increments", 19, 0, 90, 5},
    {kTypeB, H, "37, 0 to 90, 2.5 degree increments", 37, 0, 90, 2.5},
    {kTypeB, H, "19, -90 to 90, 10 degree increments", 19, -90, 90, 10},
    {kTypeB, H, "37, -90 to 90, 5 degree increments", 37, -90, 90, 5},
    {kTypeB, H, "73, -90 to 90, 2.5 degree increments", 73, -90, 90, 2.5},
    {kTypeC, V, "10, Downlight 0 to 90, 10 degree increments", 10, 0, 90, 10},
    {kTypeC, V, "19, Downlight 0 to 90, 5 degree increments", 19, 0, 90, 5},
    {kTypeC, V, "37, Downlight 0 to 90, 2.5 degree increments", 37, 0, 90, 2.5},
    {kTypeC, V, "19, Direct-Indirect 0 to 180, 10 degree increments", 19, 0, 180, 10},
    {kTypeC, V, "37, Direct-Indirect 0 to 180, 5 degree increments", 37, 0, 180, 5},
    {kTypeC, V, "73, Direct-Indirect 0 to 180, 2.5 degree increments", 73, 0, 180, 2.5},
    {kTypeC, V, "10, Indirect 90 to 180, 10 degree increments", 10, 90, 180, 10},
    {kTypeC, V, "19, Indirect 90 to 180, 5 degree increments", 19, 90, 180, 5},
    {kTypeC, V, "37, Indirect 90 to 180, 2.5 degree increments", 37, 90, 180, 2.5},
    {kTypeC, H, "01, Laterally Symmetric, No increment", 1, 0, 0, 0},
    {kTypeC, H, "05, Quad Symmetric 0 to 90, 22.5 degree increment", 5, 0, 90, 22.5},
    {kTypeC, H, "10, Quad Symmetric 0 to 90, 10 degree increment", 10, 0, 90, 10},
    {kTypeC, H, "19, Quad Symmetric 0 to 90, 5 degree increments", 19, 0, 90, 5},
    {kTypeC, H, "37, Quad Symmetric 0 to 90, 2.5 degree increments", 37, 0, 90, 2.5},
    {kTypeC, H, "09, Bilateral Symmetry 0 to 180, 22.5 degree increments", 9, 0, 180, 22.5},
    {kTypeC, H, "19, Bilateral Symmetry 0 to 180, 10 degree increments", 19, 0, 180, 10},
    {kTypeC, H, "37, Bilateral Symmetry 0 to 180, 5 degree increments", 37, 0, 180, 5},
    {kTypeC, H, "73, Bilateral Symmetry 0 to 180, 2.5 degree increments", 73, 0, 180, 2.5},
    {kTypeC, H, "17, Asymmetric distribution 0 to 360, 22.5 degree increments", 17, 0, 360, 22.5},
    {kTypeC, H, "37, Asymmetric distribution 0 to 360, 10 degree increments", 37, 0, 360, 10},
    {kTypeC, H, "73, Asymmetric distribution 0 to 360, 5 degree increments", 73, 0, 360, 5},
};

TEST(PredefinedAngles, areOfferedCharacterForCharacterInTheirOrder)
{
    std::map<std::pair<std::int16_t, AngleAxis>, std::vector<std::string>> expected;
    for (const EntryCase &entry : kEntries)
        expected[{entry.type, entry.axis}].push_back(entry.text);
    ASSERT_EQ(expected.size(), 4u);
    for (const auto &[list, texts] : expected) {
        const auto offered = predefinedAngles(list.first, list.second);
        EXPECT_EQ(std::vector<std::string>(offered.begin(), offered.end()), texts);
    }
}

class PredefinedEntry : public testing::TestWithParam<EntryCase> {};

INSTANTIATE_TEST_SUITE_P(All, PredefinedEntry, testing::ValuesIn(kEntries));

TEST_P(PredefinedEntry, givesItsAnglesAsSingles)
{
    const EntryCase &entry = GetParam();
    AngleList list(entry.axis);
    auto resizing = list.resize(entry.text, entry.type);
    ASSERT_TRUE(resizing);
    EXPECT_FALSE(resizing->becomesOne);
    apply(list, std::move(resizing->edit));
    ASSERT_EQ(list.cells().size(), entry.count);
    EXPECT_EQ(list.cells()(1), AngleCell(static_cast<float>(entry.first)));
    EXPECT_EQ(list.cells()(entry.count), AngleCell(static_cast<float>(entry.last)));
    for (int i = 1; i < entry.count; ++i) {
        ASSERT_TRUE(std::holds_alternative<float>(list.cells()(i)));
        EXPECT_EQ(singleIn(list.cells()(i + 1)) - singleIn(list.cells()(i)), static_cast<float>(entry.step)) << i;
    }
}

}  // namespace
}  // namespace penwright::test
