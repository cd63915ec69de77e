#include <gtest/gtest.h>

#include <cmath>
#include <set>
#include <string>
#include <vector>

#include "pages/luminaire/LuminousShapes.h"

namespace penwright::test {
namespace {

/// What a dimension looks like: "caption|on|text", "kept" for a text that is not touched.
std::string look(const DimensionLook &look)
{
    const std::string text = look.text ? "'" + std::string(*look.text) + "'" : "kept";
    return std::string(look.caption) + "|" + (look.isEnabled ? "on" : "off") + "|" + text;
}

struct LookCase {
    int position;
    std::string name;
    std::string width;
    std::string length;
    std::string height;
};

void PrintTo(const LookCase &row, std::ostream *out)
{
    *out << row.position << ' ' << row.name;
}

class ShapeLook : public testing::TestWithParam<LookCase> {};

// clang-format off
INSTANTIATE_TEST_SUITE_P(Table, ShapeLook, testing::ValuesIn(std::vector<LookCase>{
    {0, "Point", "Width: (90-270)|off|'0'", "Length: (0-180)|off|'0'", "Height:|off|'0'"},
    {1, "Rectangle", "Width: (90-270)|on|kept", "Length: (0-180)|on|kept", "Height:|off|' 0'"},
    {2, "Rectangle w/ Luminous Sides", "Width: (90-270)|on|kept", "Length: (0-180)|on|kept", "Height:|on|kept"},
    {3, "Circle", "Diameter > 0|on|''", "Length: (0-180)|off|'0'", "Height:|off|'0'"},
    {4, "Ellipse", "Width > 0|on|''", "Length: (0-180)|on|kept", "Height:|off|'0'"},
    {5, "Vertical Cylinder", "Diameter > 0|on|''", "Length: (0-180)|off|'0'", "Height:|on|''"},
    {6, "Vertical Ellipsoidal Cylinder", "Width (90-270)|on|''", "Length: (0-180)|on|''", "Height:|on|''"},
    {7, "Sphere", "Diameter > 0|on|''", "Length: (0-180)|off|'0'", "Vertical Diameter > 0|off|'0'"},
    {8, "Ellipsoidal Spheroid", "Width (90-270)|on|''", "Length: (0-180)|on|''", "Height|on|''"},
    {9, "Horz Cylinder along Photometric Horz.", "Width:|off|'0'", "Length: (0-180)|on|''", "Diameter > 0|on|''"},
    {10, "Horz Ellipsoidal Cylinder along Photometric Horz.", "Width:|on|''", "Length: (0-180)|on|''", "Height|on|''"},
    {11, "Horz Cylinder Perpendicular to Photometric Horz.", "Width:|on|''", "Length: (0-180)|off|'0'", "Diameter > 0|on|''"},
    {12, "Horz Ellipsoidal Cylinder Perpendicular to Photometric Horz.", "Width: (90-270)|on|''", "Length: (0-180)|on|''", "Height|on|''"},
    {13, "Vertical Circle Facing Photometric Horizontal", "Diameter|on|''", "Length: (0-180)|off|'0'", "Height|off|''"},
    {14, "Vertical Ellipse Facing Photometric Horizontal", "Width: (90-270)|on|''", "Length: (0-180)|off|'0'", "Height|on|''"},
}));
// clang-format on

TEST_P(ShapeLook, isTheRowOfTheTable)
{
    const LuminousShape *shape = luminousShapeAt(GetParam().position);
    ASSERT_TRUE(shape);
    EXPECT_EQ(shape->name, GetParam().name);
    EXPECT_EQ(look(shape->width), GetParam().width);
    EXPECT_EQ(look(shape->length), GetParam().length);
    EXPECT_EQ(look(shape->height), GetParam().height);
}

TEST(LuminousShapes, areThereFromZeroOnAndEachHasItsName)
{
    constexpr int kAll = kShapeCount;
    EXPECT_FALSE(luminousShapeAt(-1));
    std::set<std::string_view> names;
    for (int position = 0; position < kAll; ++position) {
        ASSERT_TRUE(luminousShapeAt(position)) << position;
        names.insert(luminousShapeAt(position)->name);
    }
    EXPECT_EQ(names.size(), kShapeCount);
    EXPECT_EQ(names.count(""), 0U);
    EXPECT_FALSE(luminousShapeAt(kAll));
}

/// A dimension with its sign, which "==" does not tell of zeros.
std::string signedText(float value)
{
    return (std::signbit(value) ? "-" : "+") + std::to_string(static_cast<int>(std::fabs(value)));
}

struct EncodingCase {
    int position;
    std::string positive;  ///< stored for 2, 3, 5
    std::string negative;  ///< stored for -2, -3, -5
    std::string zero;      ///< stored for 0, 0, 0
};

void PrintTo(const EncodingCase &row, std::ostream *out)
{
    *out << "position " << row.position;
}

class ShapeEncoding : public testing::TestWithParam<EncodingCase> {};

INSTANTIATE_TEST_SUITE_P(Table, ShapeEncoding,
                         testing::ValuesIn(std::vector<EncodingCase>{
                             {0, "+0 +0 +0", "+0 +0 +0", "+0 +0 +0"},
                             {1, "+2 +3 +0", "-2 -3 +0", "+0 +0 +0"},
                             {2, "+2 +3 +5", "+2 +3 +5", "+0 +0 +0"},
                             {3, "-2 -2 +0", "-2 -2 +0", "-0 -0 +0"},
                             {4, "-2 -3 +0", "-2 -3 +0", "-0 -0 +0"},
                             {5, "-2 -2 +5", "-2 -2 -5", "-0 -0 +0"},
                             {6, "-2 -3 +5", "-2 -3 -5", "-0 -0 +0"},
                             {7, "+2 +3 +5", "-2 -3 -5", "+0 +0 +0"},
                             {8, "-2 -2 -2", "-2 -2 -2", "-0 -0 -0"},
                             {9, "-2 -3 -5", "-2 -3 -5", "-0 -0 -0"},
                             {10, "-2 +3 -2", "-2 -3 -2", "-0 +0 -0"},
                             {11, "-2 +3 -5", "-2 +3 -5", "-0 +0 -0"},
                             {12, "+2 -3 -3", "+2 -3 -3", "+0 -0 -0"},
                             {13, "-2 +0 -2", "-2 +0 -2", "-0 +0 -0"},
                             {14, "-2 +0 -5", "-2 +0 -5", "-0 +0 -0"},
                             {-1, "+2 +3 +5", "-2 -3 -5", "+0 +0 +0"},
                             {kShapeCount, "+2 +3 +5", "-2 -3 -5", "+0 +0 +0"},
                         }));

TEST_P(ShapeEncoding, isTheRowOfTheTable)
{
    const auto encoded = [](const Dimensions &typed) {
        const Dimensions stored = storedDimensions(GetParam().position, typed);
        return signedText(stored.width) + " " + signedText(stored.length) + " " + signedText(stored.height);
    };
    EXPECT_EQ(encoded({2, 3, 5}), GetParam().positive);
    EXPECT_EQ(encoded({-2, -3, -5}), GetParam().negative);
    EXPECT_EQ(encoded({0, 0, 0}), GetParam().zero);
}

}  // namespace
}  // namespace penwright::test
