#include "core/IesText.h"

#include <cstdio>

#include "core/NumberText.h"
#include "platform/RunTimeError.h"
#include "support/ReadBack.h"
#include "support/SampleRecords.h"

namespace penwright {
namespace {

/// The writer by its definition: every piece is held against the text so far, as one would do it by hand.
class Model {
public:
    std::string textOf(const PhotometricRecord &r)
    {
        m_width = r.Keywords(1) == "IESNA:LM-63-2002" ? 256 : 132;
        for (const std::string &line : r.Keywords)
            piece(line + "\r\n");
        if (r.TiltIncl) {
            for (const std::string &line : {std::string("TILT=INCLUDE"), std::to_string(r.LampToLuminaireGeometry),
                                            std::to_string(r.NumTiltAngles)})
                piece(line + "\r\n");
            list(r.TiltAngles, r.NumTiltAngles);
            list(r.TiltMultipliers, r.NumTiltAngles);
        } else {
            piece("TILT=NONE\r\n");
        }
        piece(std::to_string(r.NumLamps) + " " + single(r.LumensPerLamp) + " " + single(r.CandelaMultiplier) + " " +
              std::to_string(r.NumVertAngles) + " " + std::to_string(r.NumHorzAngles) + " " +
              std::to_string(r.PhotometricType) + " " + std::to_string(r.UnitsType) + " " + single(r.Width) + " " +
              single(r.Length) + " " + single(r.Height) + "\r\n");
        piece(single(r.BallastFactor) + " 1 " + single(r.InputWatts) + "\r\n");
        list(r.VertAngles, r.NumVertAngles);
        list(r.HorAngles, r.NumHorzAngles);
        for (int h = 1; h <= r.NumHorzAngles; ++h) {
            for (int v = 1; v <= r.NumVertAngles; ++v) {
                piece(printed(r.Candela(h, v), 15));
                if (v < r.NumVertAngles)
                    piece(" ");
            }
            if (h < r.NumHorzAngles)
                piece("\r\n");
        }
        return m_text;
    }

private:
    static std::string printed(double value, int digits)
    {
        char text[64];
        std::snprintf(text, sizeof text, "%.*G", digits, value == 0 ? 0.0 : value);
        return text;
    }
    static std::string single(float value) { return printed(value, 7); }

    void list(const OneBased<float> &numbers, int count)
    {
        for (int i = 1; i <= count; ++i) {
            piece(single(numbers(i)));
            piece(i >= count ? "\r\n" : " ");
        }
    }

    void piece(const std::string &text)
    {
        const std::size_t last = m_text.rfind("\r\n");
        const std::size_t length = last == std::string::npos ? 0 : m_text.size() - (last + 1);
        if (text.size() + length > m_width && text.find("\r\n") == std::string::npos)
            m_text += "\r\n";
        m_text += text;
    }

    std::string m_text;
    std::size_t m_width = 0;
};

/// The text that the rule appends to nothing, which is read back.
std::string textOf(const PhotometricRecord &record)
{
    std::string text;
    appendIesText(text, record);
    EXPECT_EQ(test::readBackFault(text + "\r\n", record), "");
    return text;
}

/// The same of a whole file.
std::string fileOf(const PhotometricRecord &record)
{
    EXPECT_EQ(iesFileText(record), textOf(record) + "\r\n");
    return iesFileText(record);
}

/// The number of the error that a call ends with, 0 when there is none.
template <typename Call>
int errorOf(const Call &call)
{
    try {
        call();
        return 0;
    } catch (const RunTimeError &error) {
        return error.number();
    }
}

class IesText : public testing::Test {
protected:
    PhotometricRecord record = test::smallRecord();
    const std::string smallText =
        "IESNA:LM-63-2002\r\n[TEST] 1\r\n[MANUFAC] A\r\nTILT=NONE\r\n1 1000 1 3 2 1 1 0.5 -2 0\r\n0.95 1 150\r\n"
        "0 45 90\r\n0 90\r\n101 102 103\r\n201 202 203\r\n";
};

TEST_F(IesText, wholeFileStandsLineByLine)
{
    EXPECT_EQ(fileOf(record), smallText);
}

TEST_F(IesText, tiltDataIsIncluded)
{
    record.TiltIncl = true;
    record.LampToLuminaireGeometry = 2;
    record.NumTiltAngles = 3;
    record.TiltAngles = {0, 45, 90};
    record.TiltMultipliers = {1, 0.95F, 0.9F};
    EXPECT_NE(textOf(record).find("A\r\nTILT=INCLUDE\r\n2\r\n3\r\n0 45 90\r\n1 0.95 0.9\r\n1 1000"), std::string::npos);
}

TEST_F(IesText, tiltWithoutAnglesHasNoEmptyLines)
{
    record.TiltIncl = true;
    record.LampToLuminaireGeometry = 1;
    EXPECT_NE(textOf(record).find("TILT=INCLUDE\r\n1\r\n0\r\n1 1000 1 3 2"), std::string::npos);
}

TEST_F(IesText, keptTiltFieldsAreSkippedWithoutTilt)
{
    record.NumTiltAngles = 3;
    record.TiltAngles = {0, 45, 90};
    EXPECT_EQ(fileOf(record), smallText);
}

TEST_F(IesText, keywordsStandAsStored)
{
    record.Keywords = {"IESNA:LM-63-2002 ", "", "[MORE] b"};
    EXPECT_EQ(textOf(record).substr(0, 39), "IESNA:LM-63-2002 \r\n\r\n[MORE] b\r\nTILT=NON");
}

TEST_F(IesText, oneHorizontalAngleMakesOneCandelaLine)
{
    record.NumHorzAngles = 1;
    const std::string text = fileOf(record);
    EXPECT_EQ(text.substr(text.size() - 18), "\r\n0\r\n101 102 103\r\n");
}

TEST_F(IesText, thirtySevenAnglesUnderThe2002HeaderAreNotFolded)
{
    record.NumHorzAngles = 1;
    record.NumVertAngles = 37;
    record.VertAngles.reset(37);
    record.Candela.reset(1, 37);
    std::string angles;
    for (int i = 1; i <= 37; ++i) {
        record.VertAngles(i) = static_cast<float>(5 * (i - 1));
        angles += (i > 1 ? " " : "") + std::to_string(5 * (i - 1));
    }
    EXPECT_NE(textOf(record).find("\r\n" + angles + "\r\n"), std::string::npos);
}

TEST_F(IesText, candelaIsWrittenWithAllTheDigitsOfItsSingle)
{
    record.Candela(1, 1) = 12.3F;
    record.Candela(1, 2) = 1234.5678F;
    record.Candela(1, 3) = 1000;
    EXPECT_NE(textOf(record).find("\r\n12.3000001907349 1234.56774902344 1000\r\n"), std::string::npos);
}

TEST_F(IesText, agreesWithItsDefinitionForManyRecords)
{
    test::RandomRecords random(63);
    for (int i = 0; i < 400; ++i) {
        const PhotometricRecord any = random.next();
        ASSERT_EQ(textOf(any), Model().textOf(any)) << "record " << i;
    }
}

TEST_F(IesText, headerLineBeyondSixteenBitsOverflows)
{
    record.Keywords(2) = std::string(32763, 'x');
    EXPECT_EQ(errorOf([this] { textOf(record); }), 0);
    record.Keywords(2) = std::string(32765, 'x');
    EXPECT_EQ(errorOf([this] { textOf(record); }), 6);
}

TEST_F(IesText, secondTextHasNothingOfTheFirst)
{
    test::RandomRecords random(7);
    textOf(random.next());
    EXPECT_EQ(fileOf(record), smallText);
}

TEST_F(IesText, missingFormatLineIsErrorNine)
{
    record.Keywords.clear();
    EXPECT_EQ(errorOf([this] { textOf(record); }), 9);
}

TEST_F(IesText, errorLeavesWhatWasAppendedBefore)
{
    record.NumHorzAngles = 3;  // one more than there are
    std::string text = "before, ";
    EXPECT_EQ(errorOf([&] { appendIesText(text, record); }), 9);
    EXPECT_EQ(text,
              "before, IESNA:LM-63-2002\r\n[TEST] 1\r\n[MANUFAC] A\r\nTILT=NONE\r\n1 1000 1 3 3 1 1 0.5 -2 0\r\n"
              "0.95 1 150\r\n0 45 90\r\n0 90 ");
}

}  // namespace
}  // namespace penwright
