#include "core/IesWriter.h"

#include <cstdio>

#include "core/NumberText.h"
#include "platform/RunTimeError.h"
#include "support/FakeDialogs.h"
#include "support/FakeTextFiles.h"
#include "support/SampleRecords.h"

#include <cerrno>

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

class Writer : public testing::Test {
protected:
    test::FakeTextFiles files;
    test::FakeDialogs dialogs;
    IesWriter writer{files, dialogs};
    PhotometricRecord record = test::smallRecord();
    const std::string smallText =
        "IESNA:LM-63-2002\r\n[TEST] 1\r\n[MANUFAC] A\r\nTILT=NONE\r\n1 1000 1 3 2 1 1 0.5 -2 0\r\n0.95 1 150\r\n"
        "0 45 90\r\n0 90\r\n101 102 103\r\n201 202 203\r\n";
};

TEST_F(Writer, wholeFileIsWrittenLineByLine)
{
    EXPECT_TRUE(writer.WriteIesFile(record));
    ASSERT_EQ(files.written.size(), 1u);
    EXPECT_EQ(files.written[0].first, "small.ies");
    EXPECT_EQ(files.written[0].second, smallText);
    EXPECT_EQ(dialogs.transcript, "");
}

TEST_F(Writer, tiltDataIsIncluded)
{
    record.TiltIncl = true;
    record.LampToLuminaireGeometry = 2;
    record.NumTiltAngles = 3;
    record.TiltAngles = {0, 45, 90};
    record.TiltMultipliers = {1, 0.95F, 0.9F};
    writer.build(record);
    EXPECT_NE(writer.text().find("A\r\nTILT=INCLUDE\r\n2\r\n3\r\n0 45 90\r\n1 0.95 0.9\r\n1 1000"), std::string::npos);
}

TEST_F(Writer, tiltWithoutAnglesHasNoEmptyLines)
{
    record.TiltIncl = true;
    record.LampToLuminaireGeometry = 1;
    writer.build(record);
    EXPECT_NE(writer.text().find("TILT=INCLUDE\r\n1\r\n0\r\n1 1000 1 3 2"), std::string::npos);
}

TEST_F(Writer, keptTiltFieldsAreSkippedWithoutTilt)
{
    record.NumTiltAngles = 3;
    record.TiltAngles = {0, 45, 90};
    writer.build(record);
    EXPECT_EQ(writer.text() + "\r\n", smallText);
}

TEST_F(Writer, keywordsStandAsStored)
{
    record.Keywords = {"IESNA:LM-63-2002 ", "", "[MORE] b"};
    writer.build(record);
    EXPECT_EQ(writer.text().substr(0, 39), "IESNA:LM-63-2002 \r\n\r\n[MORE] b\r\nTILT=NON");
}

TEST_F(Writer, oneHorizontalAngleMakesOneCandelaLine)
{
    record.NumHorzAngles = 1;
    EXPECT_TRUE(writer.WriteIesFile(record));
    const std::string &text = files.written[0].second;
    EXPECT_EQ(text.substr(text.size() - 18), "\r\n0\r\n101 102 103\r\n");
}

TEST_F(Writer, thirtySevenAnglesUnderThe2002HeaderAreNotFolded)
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
    writer.build(record);
    EXPECT_NE(writer.text().find("\r\n" + angles + "\r\n"), std::string::npos);
}

TEST_F(Writer, candelaIsWrittenWithAllTheDigitsOfItsSingle)
{
    record.Candela(1, 1) = 12.3F;
    record.Candela(1, 2) = 1234.5678F;
    record.Candela(1, 3) = 1000;
    writer.build(record);
    EXPECT_NE(writer.text().find("\r\n12.3000001907349 1234.56774902344 1000\r\n"), std::string::npos);
}

TEST_F(Writer, agreesWithItsDefinitionForManyRecords)
{
    test::RandomRecords random(63);
    for (int i = 0; i < 400; ++i) {
        const PhotometricRecord any = random.next();
        writer.build(any);
        ASSERT_EQ(writer.text(), Model().textOf(any)) << "record " << i;
    }
}

TEST_F(Writer, missingFormatLineIsToldAsErrorNine)
{
    record.Keywords.clear();
    dialogs.answers = {Answer::Cancel};
    EXPECT_FALSE(writer.WriteIesFile(record));
    EXPECT_TRUE(files.written.empty());
    EXPECT_EQ(dialogs.transcript,
              "[Error saving small.ies|1] Windows Error 9 Subscript out of range PenwrightPE\r\n"
              "OK to Retry, Cancel to quit.\n");
}

TEST_F(Writer, retryWritesThePartialTextOfAFailedBuild)
{
    record.NumHorzAngles = 3;  // one more than there are
    EXPECT_TRUE(writer.WriteIesFile(record));
    ASSERT_EQ(files.written.size(), 1u);
    const std::string &text = files.written[0].second;
    const std::string end = "0.95 1 150\r\n0 45 90\r\n0 90 \r\n";
    EXPECT_EQ(text.substr(text.size() - end.size()), end);
}

TEST_F(Writer, retryWritesTheSameTextAgain)
{
    files.failures = {ENOSPC};
    dialogs.answers = {Answer::Ok};
    EXPECT_TRUE(writer.WriteIesFile(record));
    ASSERT_EQ(files.written.size(), 2u);
    EXPECT_EQ(files.written[1].second, smallText);
    EXPECT_EQ(dialogs.transcript,
              "[Error saving small.ies|1] Disk is full. Free up space on this disk or choose another.\r\n"
              "OK to Retry, Cancel to quit.\n");
}

// A host command that arrives meanwhile may put other records in its place.
TEST_F(Writer, retryDoesNotLookAtTheRecordAgain)
{
    files.failures = {ENOSPC};
    dialogs.onShow = [this](const MessageBox &) { record = PhotometricRecord(); };
    EXPECT_TRUE(writer.WriteIesFile(record));
    ASSERT_EQ(files.written.size(), 2u);
    EXPECT_EQ(files.written[1].first, "small.ies");
    EXPECT_EQ(files.written[1].second, smallText);
}

TEST_F(Writer, cancelAndDismissalWriteNothingMore)
{
    for (const Answer answer : {Answer::Cancel, Answer::Dismissed}) {
        files.failures = {ENOENT};
        files.written.clear();
        dialogs.answers = {answer};
        EXPECT_FALSE(writer.WriteIesFile(record));
        EXPECT_EQ(files.written.size(), 1u);
    }
}

TEST_F(Writer, errorOnTheRetryReachesTheCaller)
{
    files.failures = {ENOENT, EACCES};
    dialogs.answers = {Answer::Ok};
    try {
        writer.WriteIesFile(record);
        ADD_FAILURE() << "no error";
    } catch (const RunTimeError &error) {
        EXPECT_EQ(error.number(), 70);
    }
    EXPECT_EQ(files.written.size(), 2u);
}

TEST_F(Writer, headerLineBeyondSixteenBitsOverflows)
{
    record.Keywords(2) = std::string(32763, 'x');
    writer.build(record);
    record.Keywords(2) = std::string(32765, 'x');
    dialogs.answers = {Answer::Cancel};
    EXPECT_FALSE(writer.WriteIesFile(record));
    EXPECT_EQ(dialogs.transcript, "[Error saving small.ies|1] Calculation Overflow\r\nOK to Retry, Cancel to quit.\n");
}

TEST_F(Writer, secondFileHasNothingOfTheFirst)
{
    test::RandomRecords random(7);
    writer.build(random.next());
    writer.build(record);
    EXPECT_EQ(writer.text() + "\r\n", smallText);
}

}  // namespace
}  // namespace penwright
