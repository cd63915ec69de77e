#include <algorithm>

#include "core/IesText.h"
#include "support/RandomRecord.h"
#include "support/ReadBack.h"
#include "support/SampleRecords.h"
#include "unit/core/IesReaderTest.h"

namespace penwright {
namespace {

using test::asInTheFile;
using test::iesContentOf;

/// The record with what a file must have to be read: angles that rise, a type, a unit, a geometry.
PhotometricRecord madeReadable(PhotometricRecord record)
{
    for (OneBased<float> *angles : {&record.TiltAngles, &record.VertAngles, &record.HorAngles})
        std::sort(angles->begin(), angles->end());
    for (std::int16_t *code : {&record.PhotometricType, &record.UnitsType, &record.LampToLuminaireGeometry})
        *code = std::max<std::int16_t>(*code, 1);
    return record;
}

void expectTheSameBack(const PhotometricRecord &record)
{
    const std::string text = iesFileText(record);
    const PhotometricRecord read = iesContentOf(text).record;
    EXPECT_EQ(read, asInTheFile(record));
    EXPECT_EQ(iesFileText(read), text);
}

TEST(IesReaderCircle, theSmallRecordComesBack)
{
    expectTheSameBack(test::smallRecord());
}

TEST(IesReaderCircle, aRecordWithTiltComesBack)
{
    expectTheSameBack(test::wholeRecord());
}

/// How many of the records were read; those without an angle are refused.
int readBack(const auto &next, int records)
{
    int count = 0;
    for (int i = 0; i < records && !testing::Test::HasFailure(); ++i) {
        SCOPED_TRACE("record " + std::to_string(i));
        const PhotometricRecord record = madeReadable(next());
        const bool hasAngles = record.NumVertAngles > 0 && record.NumHorzAngles > 0;
        if (hasAngles)
            expectTheSameBack(record);
        else
            EXPECT_NE(test::refusalOf(iesFileText(record)).find("angles is 0; "), std::string::npos);
        count += hasAngles ? 1 : 0;
    }
    return count;
}

TEST(IesReaderCircle, theWritersRandomRecordsComeBack)
{
    for (const unsigned seed : {63U, 7U}) {
        test::RandomRecords random(seed);
        EXPECT_GT(readBack([&random] { return random.next(); }, 200), 150);
    }
}

TEST(IesReaderCircle, theStoresRandomRecordsComeBack)
{
    test::RandomRecord random(1);
    const auto next = [&random] {
        PhotometricRecord record = random.make();
        // The writer's first line is the first keyword, without which there is no file.
        if (record.Keywords.empty())
            record.Keywords.append("IESNA91");
        return record;
    };
    EXPECT_GT(readBack(next, 400), 240);
}

// A line that were read as UTF-16 for its first two bytes would be another one each time that its file is written.
TEST(IesReaderCircle, whatIsAMarkAtTheBeginningOfAFileIsTextWithinIt)
{
    const std::string marks = "\xFF\xFE\xFF\xFE[A] 1\r\n\xEF\xBB\xBF[B] 2\r\nTILT=INCLUDE";
    const PhotometricRecord read = iesContentOf(test::with(test::kWholeFile, "TILT=INCLUDE", marks)).record;
    const int last = static_cast<int>(read.Keywords.size());
    EXPECT_EQ(read.Keywords(last - 1), "\xC3\xBF\xC3\xBE\xC3\xBF\xC3\xBE[A] 1");
    EXPECT_EQ(read.Keywords(last), "\xEF\xBB\xBF[B] 2");
    EXPECT_EQ(iesContentOf(iesFileText(read)).record, read);
}

TEST(IesReaderCircle, aTableThatFoldsBetweenBlanksComesBack)
{
    PhotometricRecord record = test::smallRecord();
    record.Keywords(1) = "IESNA91";
    record.NumVertAngles = 1000;
    record.NumHorzAngles = 30;
    record.VertAngles.reset(1000);
    record.HorAngles.reset(30);
    record.Candela.reset(30, 1000);
    for (int h = 1; h <= 30; ++h)
        for (int v = 1; v <= 1000; ++v)
            record.Candela(h, v) = static_cast<float>((h * v) % 997) / 8;
    expectTheSameBack(record);
}

}  // namespace
}  // namespace penwright
