#include "review/Figures.h"
#include "ReviewTest.h"

namespace penwright::test {
namespace {

std::vector<Figure> figuresOf(const PhotometricRecord &record)
{
    return penwright::figuresOf(record, photometryOf(record));
}

/// All figures as one text, a line for each: name, text and unit, and the reason in brackets.
std::string textOf(const std::vector<Figure> &figures)
{
    std::string text;
    for (const Figure &figure : figures) {
        text += figure.name + ": " + figure.text;
        if (!figure.unit.empty())
            text.append(" ").append(figure.unit);
        if (!figure.reason.empty())
            text += " (" + figure.reason + ")";
        text += "\n";
    }
    return text;
}

TEST(Figures, haveTheirUnitBehindTheValue)
{
    EXPECT_EQ(valueWithUnit({"Efficiency", "84.4", "%", ""}), "84.4 %");
    EXPECT_EQ(valueWithUnit({"Symmetry", "none", "", ""}), "none");
    EXPECT_EQ(valueWithUnit({"Efficiency", "-", "", "The lamps give no lumens."}), "-");
}

Figure figureOf(const PhotometricRecord &record, const std::string &name)
{
    for (const Figure &figure : figuresOf(record))
        if (figure.name == name)
            return figure;
    ADD_FAILURE() << "no figure " << name;
    return {};
}

double downAndUp(double, double v)
{
    return v <= 90 ? 2000 * cosine(v) : -500 * cosine(v);
}

TEST(Figures, ofALuminaireAreTheseInThisOrder)
{
    EXPECT_EQ(textOf(figuresOf(withTable(plainRecord(), kTypeC, anglesTo(90, 22.5F), anglesTo(180, 5), downAndUp))),
              "Lumens of the luminaire: 7,854 lm\n"
              "Lumens of the lamps: 10,000 lm\n"
              "Efficiency: 78.5 %\n"
              "Largest value: 2,000 cd\n"
              "Direction of the largest value: V 0, H 0 degrees\n"
              "Beam angle in plane 0-180: 120 degrees\n"
              "Beam angle in plane 90-270: 120 degrees\n"
              "Field angle in plane 0-180: 169 degrees\n"
              "Field angle in plane 90-270: 169 degrees\n"
              "Upward share: 20 %\n"
              "Downward share: 80 %\n"
              "Symmetry: four equal quadrants\n"
              "Width x length x height in meters: 0.6 x 1.2 x 0 m\n"
              "Width x length x height in feet: 1.97 x 3.94 x 0 ft\n");
}

TEST(Figures, ofAFloodlightAreTheseInThisOrder)
{
    PhotometricRecord record =
        withTable(plainRecord(), kTypeB, anglesTo(90, 5, -90), anglesTo(90, 5, -90), [](double h, double v) {
            return 12000 * std::max(0.0, 1 - std::fabs(h) / 40) * std::max(0.0, 1 - std::fabs(v) / 20);
        });
    record.LumensPerLamp = -1;
    record.UnitsType = kFeet;
    record.Width = -2;
    record.Length = -2;
    record.Height = 0.5F;
    EXPECT_EQ(textOf(figuresOf(record)),
              "Lumens of the luminaire: 2,806 lm\n"
              "Lumens of the lamps: - (The values are absolute: the lamps have no lumens.)\n"
              "Efficacy: 28.1 lm/W\n"
              "Largest value: 12,000 cd\n"
              "Direction of the largest value: V 0, H 0 degrees\n"
              "Beam angle in the vertical plane: 20 degrees\n"
              "Beam angle in the horizontal plane: 40 degrees\n"
              "Field angle in the vertical plane: 36 degrees\n"
              "Field angle in the horizontal plane: 72 degrees\n"
              "Upward share: - (Where type B points up and down depends on the aim.)\n"
              "Downward share: - (Where type B points up and down depends on the aim.)\n"
              "Symmetry: none\n"
              "Width x length x height in meters: 0.61 x 0.61 x 0.152 m\n"
              "Width x length x height in feet: 2 x 2 x 0.5 ft\n");
}

TEST(Figures, ofAnEmptyRecordAllSayWhy)
{
    EXPECT_EQ(textOf(figuresOf(PhotometricRecord())),
              "Lumens of the luminaire: - (The table has no values.)\n"
              "Lumens of the lamps: 0 lm\n"
              "Efficiency: - (The table has no values.)\n"
              "Largest value: - (The table has no values.)\n"
              "Direction of the largest value: - (The table has no values.)\n"
              "Beam angle in plane 0-180: - (The table has no values.)\n"
              "Beam angle in plane 90-270: - (The table has no values.)\n"
              "Field angle in plane 0-180: - (The table has no values.)\n"
              "Field angle in plane 90-270: - (The table has no values.)\n"
              "Upward share: - (The table has no values.)\n"
              "Downward share: - (The table has no values.)\n"
              "Symmetry: - (The table has no values.)\n"
              "Width x length x height in meters: - (The record does not say whether it counts in feet or meters.)\n"
              "Width x length x height in feet: - (The record does not say whether it counts in feet or meters.)\n");
}

TEST(Figures, ofADownlightHaveNoRestOfSharesUpwards)
{
    for (int peak = 1; peak < 100; ++peak) {
        const PhotometricRecord record = withTable(plainRecord(), kTypeC, {0, 90}, anglesTo(90, 5),
                                                   [=](double, double v) { return std::round(peak * cosine(v)); });
        EXPECT_EQ(figureOf(record, "Upward share").text, "0") << peak;
        EXPECT_EQ(figureOf(record, "Downward share").text, "100") << peak;
    }
}

TEST(Figures, ofZerosSayWhatIsMissing)
{
    const PhotometricRecord record =
        withTable(plainRecord(), kTypeC, {0}, anglesTo(90, 5), [](double, double) { return 0; });
    EXPECT_EQ(figureOf(record, "Lumens of the luminaire").text, "0");
    EXPECT_EQ(figureOf(record, "Efficiency").text, "0");
    EXPECT_EQ(figureOf(record, "Largest value").reason, "No value is above 0.");
    EXPECT_EQ(figureOf(record, "Beam angle in plane 0-180").reason, "No value of this plane is above 0.");
    EXPECT_EQ(figureOf(record, "Upward share").reason, "The table gives no light.");
}

TEST(Figures, ofHugeValuesAreNone)
{
    PhotometricRecord record =
        withTable(plainRecord(), kTypeC, {0}, anglesTo(180, 5), [](double, double) { return 1e300; });
    record.CandelaMultiplier = 3e38F;
    for (const char *name : {"Lumens of the luminaire", "Efficiency", "Largest value", "Upward share"})
        EXPECT_EQ(figureOf(record, name), (Figure{name, "-", "", "The values are too large to add up."})) << name;
    record.LumensPerLamp = -1;
    EXPECT_EQ(figureOf(record, "Efficacy").text, "-");
}

TEST(Figures, ofLampsCountAll)
{
    PhotometricRecord record = withTable(plainRecord(), kTypeC, {0}, {0, 90}, downAndUp);
    record.NumLamps = 3;
    record.LumensPerLamp = 4450;
    EXPECT_EQ(figureOf(record, "Lumens of the lamps").text, "13,350");
    record.LumensPerLamp = 0;
    EXPECT_EQ(figureOf(record, "Efficiency").reason, "The lamps give no lumens.");
}

TEST(Figures, needWattsForTheEfficacy)
{
    PhotometricRecord record = withTable(plainRecord(), kTypeC, {0}, {0, 90}, downAndUp);
    record.LumensPerLamp = -1;
    record.InputWatts = 0;
    EXPECT_EQ(figureOf(record, "Efficacy").reason, "The input watts are not above 0.");
}

struct SymmetryCase {
    std::int16_t type;
    std::vector<float> horizontal;
    float firstVertical;
    std::string words;
};

class FigureOfSymmetry : public testing::TestWithParam<SymmetryCase> {};

TEST_P(FigureOfSymmetry, saysWhatTheListsState)
{
    const SymmetryCase &given = GetParam();
    const Figure figure = figureOf(
        withTable(plainRecord(), given.type, given.horizontal, {given.firstVertical, 90}, downAndUp), "Symmetry");
    EXPECT_EQ(figure.text, given.words);
    EXPECT_EQ(figure.reason, given.words == "-" ? "These horizontal angles state no symmetry." : "");
}

INSTANTIATE_TEST_SUITE_P(Lists, FigureOfSymmetry,
                         testing::ValuesIn(std::vector<SymmetryCase>{
                             {kTypeC, {0}, 0, "the same in all planes"},
                             {kTypeC, {0, 45, 90}, 0, "four equal quadrants"},
                             {kTypeC, {90, 180}, 0, "four equal quadrants"},
                             {kTypeC, {0, 180}, 0, "two halves, mirrored at plane 0-180"},
                             {kTypeC, {90, 180, 270}, 0, "two halves, mirrored at plane 90-270"},
                             {kTypeC, {0, 180, 360}, 0, "none"},
                             {kTypeC, {0, 45}, 0, "-"},
                             {kTypeC, {90, 360}, 0, "-"},
                             {kTypeC, {45, 135}, 0, "-"},
                             {kTypeC, {45, 225}, 0, "-"},
                             {kTypeB, {-90, 90}, -90, "none"},
                             {kTypeB, {0, 90}, -90, "left as right"},
                             {kTypeB, {-90, 90}, 0, "up as down"},
                             {kTypeB, {0, 90}, 0, "left as right, up as down"},
                         }));

}  // namespace
}  // namespace penwright::test
