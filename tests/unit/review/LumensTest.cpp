#include "review/Lumens.h"
#include "review/Photometry.h"
#include "review/TableFault.h"
#include "ReviewTest.h"

namespace penwright::test {
namespace {

constexpr double kPi = std::numbers::pi;

double sine(double degrees)
{
    return cosine(90 - degrees);
}

/// The same in every direction: 4 pi times it.
double sphere(double, double)
{
    return 1000;
}

/// A Lambertian disc that shines down (type C): pi times its axis.
double disc(double, double v)
{
    return 1000 * std::max(0.0, cosine(v));
}

/// Shines more to one side, in lumens as much as the disc: the sides make up for each other.
double leaning(double h, double v)
{
    return disc(h, v) * (1 + 0.5 * cosine(h));
}

/// Four equal quadrants that hold as much as the disc.
double quartered(double h, double v)
{
    return disc(h, v) * (1 + 0.5 * cosine(2 * h));
}

/// A cone around the axis: 2 pi / 41 times its axis.
double cone(double, double v)
{
    return v < 90 ? 1000 * std::pow(cosine(v), 40) : 0;
}

/// The disc that faces type B's axis.
double facing(double h, double v)
{
    return 1000 * cosine(h) * cosine(v);
}

TableLumens lumensOf(const PhotometricRecord &record)
{
    return photometryOf(record).lumens;
}

struct SolidCase {
    std::string name;
    std::int16_t type;
    std::vector<float> horizontal;
    std::vector<float> vertical;
    Solid solid;
    double lumens;
    double share = 0.001;  ///< of the lumens, that the sum may differ by
};

void PrintTo(const SolidCase &given, std::ostream *out)
{
    *out << given.name;
}

class SolidLumens : public testing::TestWithParam<SolidCase> {};

TEST_P(SolidLumens, areThoseOfTheClosedForm)
{
    const SolidCase &given = GetParam();
    const PhotometricRecord record =
        withTable(plainRecord(), given.type, given.horizontal, given.vertical, given.solid);
    const Measure lumens = lumensOf(record).all;
    ASSERT_TRUE(lumens.isKnown()) << lumens.reason();
    EXPECT_NEAR(lumens.value(), given.lumens, given.share * given.lumens);
}

const std::vector<float> kFull = anglesTo(180, 5);
const std::vector<float> kHalf = anglesTo(90, 5);
const std::vector<float> kAround = anglesTo(360, 5);
const std::vector<float> kBoth = anglesTo(90, 5, -90);
const std::vector<float> kUnevenVertical{0, 1, 3, 7, 10, 18, 25, 31, 40, 47, 50, 62, 70, 75, 83, 89, 90};
const std::vector<float> kUnevenAround{0, 5, 8, 20, 30, 45, 60, 70, 90, 100, 120, 145, 150, 180};

// Three kinds of table are not held to 0.1 %, because chords are not the curve: a cone as narrow as 21 degrees at steps
// of 5 comes out 5 % high; sums of type B lose 0.2 % at steps of 5, on a circle in both lists; steps of up to 25
// degrees around give 0.2 % too much.
INSTANTIATE_TEST_SUITE_P(
    Solids, SolidLumens,
    testing::ValuesIn(std::vector<SolidCase>{
        {"sphere, all planes the same", kTypeC, {0}, kFull, sphere, 4000 * kPi},
        {"sphere, quadrants", kTypeC, anglesTo(90, 5), kFull, sphere, 4000 * kPi},
        {"sphere, mirrored", kTypeC, anglesTo(180, 5), kFull, sphere, 4000 * kPi},
        {"sphere, all around", kTypeC, kAround, kFull, sphere, 4000 * kPi},
        {"lower half of the sphere", kTypeC, {0}, kHalf, sphere, 2000 * kPi},
        {"upper half of the sphere", kTypeC, {0}, anglesTo(180, 5, 90), sphere, 2000 * kPi},
        {"disc, all planes the same", kTypeC, {0}, kHalf, disc, 1000 * kPi},
        {"disc, two angles are enough", kTypeC, {0}, {0, 90}, disc, 1000 * kPi},
        {"disc, up and down", kTypeC, kAround, kFull, disc, 1000 * kPi},
        {"disc, uneven steps", kTypeC, {0}, kUnevenVertical, disc, 1000 * kPi},
        {"leaning, mirrored", kTypeC, anglesTo(180, 5), kHalf, leaning, 1000 * kPi},
        {"leaning, all around", kTypeC, kAround, kHalf, leaning, 1000 * kPi},
        {"leaning, uneven steps", kTypeC, kUnevenAround, kUnevenVertical, leaning, 1000 * kPi, 0.0025},
        {"quartered, quadrants", kTypeC, anglesTo(90, 5), kHalf, quartered, 1000 * kPi},
        {"cone, steps of half a degree", kTypeC, {0}, anglesTo(90, 0.5F), cone, 2000 * kPi / 41},
        {"cone, steps of 5", kTypeC, {0}, kHalf, cone, 2000 * kPi / 41, 0.052},
        {"sphere, type B", kTypeB, kBoth, kBoth, sphere, 2000 * kPi},
        {"sphere, type B, left as right", kTypeB, kHalf, kBoth, sphere, 2000 * kPi},
        {"sphere, type B, up as down", kTypeB, kBoth, kHalf, sphere, 2000 * kPi},
        {"sphere, type B, a quarter", kTypeB, kHalf, kHalf, sphere, 2000 * kPi},
        {"disc, type B", kTypeB, kBoth, kBoth, facing, 1000 * kPi, 0.0021},
        {"disc, type B, steps of 2", kTypeB, anglesTo(90, 2, -90), anglesTo(90, 2, -90), facing, 1000 * kPi},
        {"disc, type B, a quarter, steps of 2", kTypeB, anglesTo(90, 2), anglesTo(90, 2), facing, 1000 * kPi},
    }));

// The rules themselves, on a table that can be added up by hand.
TEST(Lumens, areTrapezoidsOverSolidAngles)
{
    PhotometricRecord record = withTable(plainRecord(), kTypeC, {0, 30, 90}, {0, 60, 90}, sphere);
    record.Candela(1, 2) = 400;
    record.Candela(2, 2) = 700;
    record.Candela(3, 2) = 100;
    const double row = (400 * 15 + 700 * 45 + 100 * 30) / 90.0;
    EXPECT_NEAR(lumensOf(record).all.value(), kPi * (0.5 * (1000 + row) + 0.5 * (row + 1000)), 1e-6);
}

TEST(Lumens, ofTypeBAreTheMeansOfFourCorners)
{
    PhotometricRecord record = withTable(plainRecord(), kTypeB, {-90, 30, 90}, {-90, 45, 90}, sphere);
    record.Candela(2, 2) = 200;
    const double around = 1 + sine(30);
    EXPECT_NEAR(lumensOf(record).all.value(), 800 * (around + 0.5) * kPi, 1e-6);
}

TEST(Lumens, containMultiplierAndBallastFactor)
{
    PhotometricRecord record = withTable(plainRecord(), kTypeC, {0}, kFull, sphere);
    record.CandelaMultiplier = 2.5F;
    record.BallastFactor = 0.5F;
    EXPECT_NEAR(lumensOf(record).all.value(), 5000 * kPi, 1e-3);
}

TEST(Lumens, belowTheHorizontalAreParted)
{
    const auto below = [](const std::vector<float> &vertical) {
        return lumensOf(withTable(plainRecord(), kTypeC, {0}, vertical, sphere)).below.value();
    };
    EXPECT_NEAR(below(kFull), 2000 * kPi, 1e-3);
    EXPECT_NEAR(below({0, 40, 100, 180}), 2000 * kPi, 1e-3) << "a zone across the horizontal";
    EXPECT_NEAR(below(anglesTo(180, 5, 90)), 0, 1e-9);
}

TEST(Lumens, areNotPartedInTypeB)
{
    const TableLumens lumens = lumensOf(withTable(plainRecord(), kTypeB, kBoth, kBoth, sphere));
    EXPECT_TRUE(lumens.all.isKnown());
    EXPECT_EQ(lumens.below.reason(), "Where type B points up and down depends on the aim.");
}

TEST(Lumens, useNoMoreThanIsCounted)
{
    PhotometricRecord record = withTable(plainRecord(), kTypeC, {0}, {0, 90, 180}, sphere);
    record.NumVertAngles = 2;
    EXPECT_NEAR(lumensOf(record).all.value(), 2000 * kPi, 1e-3);
}

struct NoLumensCase {
    std::int16_t type;
    std::vector<float> horizontal;
    std::vector<float> vertical;
    std::string reason;
};

class NoLumens : public testing::TestWithParam<NoLumensCase> {};

TEST_P(NoLumens, sayWhy)
{
    const NoLumensCase &given = GetParam();
    const PhotometricRecord record = withTable(plainRecord(), given.type, given.horizontal, given.vertical, sphere);
    EXPECT_EQ(lumensOf(record).all.reason(), given.reason);
    EXPECT_EQ(lumensOf(record).below.reason(), given.reason);
}

const std::string kSpan = "The horizontal angles span none of 90, 180 and 360 degrees.";

INSTANTIATE_TEST_SUITE_P(
    Lists, NoLumens,
    testing::ValuesIn(std::vector<NoLumensCase>{
        {kTypeC, {90, 180, 270}, {0, 90}, "The horizontal angles do not begin at 0."},
        {kTypeC, {90}, {0, 90}, "The horizontal angles do not begin at 0."},
        {kTypeC, {0, 45}, {0, 90}, kSpan},
        {kTypeC, {0, 120, 345}, {0, 90}, kSpan},
        {kTypeC, {0, 0}, {0, 90}, kSpan},
        {kTypeC, {0}, {90}, "The vertical angles span nothing."},
        {kTypeC, {0}, {45, 45, 45}, "The vertical angles span nothing."},
        {kTypeC, {0}, {0, 90, 45}, "The vertical angles do not rise."},
        {kTypeC, {0}, {std::nanf(""), 45}, "The vertical angles do not rise."},
        {kTypeC, {0}, {std::nanf("")}, "The vertical angles do not rise."},
        {kTypeC, {0, 180, 90}, {0, 90}, "The horizontal angles do not rise."},
        {kTypeC, {0}, {-90, 90}, "The vertical angles of type C lie between 0 and 180."},
        {kTypeC, {0}, {0, 190}, "The vertical angles of type C lie between 0 and 180."},
        {kTypeB, {0}, {-90, 90}, "The horizontal angles span nothing."},
        {kTypeB, {-180, 180}, {-90, 90}, "The horizontal angles of type B lie between -90 and 90."},
        {3, {-90, 90}, {-90, 90}, "Lumens are added up for types C and B only."},
    }));

TEST(NoLumens, whenTheValuesAreTooLarge)
{
    PhotometricRecord record = withTable(plainRecord(), kTypeC, {0}, kFull, [](double, double) { return 1e38; });
    record.CandelaMultiplier = record.BallastFactor = 3e38F;
    EXPECT_TRUE(lumensOf(record).all.isKnown());
    record.Candela(1, 3) = 1e300;
    EXPECT_EQ(lumensOf(record).all.reason(), "The values are too large to add up.");
    record.Candela(1, 3) = std::nan("");
    EXPECT_EQ(lumensOf(record).all.reason(), "The values are too large to add up.");
}

struct DamagedCase {
    std::function<void(PhotometricRecord &)> damage;
    std::string fault;
};

class DamagedTable : public testing::TestWithParam<DamagedCase> {};

TEST_P(DamagedTable, isToldInOneSentence)
{
    PhotometricRecord record = withTable(plainRecord(), kTypeC, {0, 90}, {0, 45, 90}, sphere);
    GetParam().damage(record);
    EXPECT_EQ(tableFault(record), GetParam().fault);
    EXPECT_EQ(lumensOf(record).all.reason(), GetParam().fault);
}

INSTANTIATE_TEST_SUITE_P(
    Damages, DamagedTable,
    testing::ValuesIn(std::vector<DamagedCase>{
        {[](PhotometricRecord &r) { r = plainRecord(); }, "The table has no values."},
        {[](PhotometricRecord &r) { r.NumHorzAngles = 0; }, "The table has no values."},
        {[](PhotometricRecord &r) { r.NumVertAngles = -3; }, "The table has no values."},
        {[](PhotometricRecord &r) { r.VertAngles.resize(2); }, "The record counts 3 vertical angles and holds 2."},
        {[](PhotometricRecord &r) { r.HorAngles.clear(); }, "The record counts 2 horizontal angles and holds 0."},
        {[](PhotometricRecord &r) { r.Candela.reset(1, 3); }, "The record counts 2 planes of values and holds 1."},
        {[](PhotometricRecord &r) { r.Candela.reset(2, 0); }, "The record counts 3 values in a plane and holds 0."},
    }));

}  // namespace
}  // namespace penwright::test
