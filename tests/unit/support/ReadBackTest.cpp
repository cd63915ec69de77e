#include "support/ReadBack.h"

#include <gtest/gtest.h>

#include "support/SampleRecords.h"

namespace penwright::test {
namespace {

TEST(ReadBack, findsNothingWrongWithWhatTheWriterWrites)
{
    EXPECT_EQ(readBackFault(iesFileText(smallRecord())), "");
    EXPECT_EQ(readBackFault(iesFileText(smallRecord()), smallRecord()), "");
}

TEST(ReadBack, findsAFileThatCannotBeReadOrIsWrittenOtherwise)
{
    std::string text = iesFileText(smallRecord());
    EXPECT_EQ(readBackFault(text.substr(0, text.size() - 5)), "Line 10: the file ends behind 5 of 6 candela values.");
    text.insert(text.find("201"), "+");
    EXPECT_EQ(readBackFault(text), "another text is written of what was read");
}

TEST(ReadBack, findsAnotherRecord)
{
    PhotometricRecord other = smallRecord();
    other.Candela(2, 3) += 1;
    EXPECT_EQ(readBackFault(iesFileText(other), smallRecord()), "another record was read");
    other.PhotometricType = 0;
    EXPECT_EQ(readBackFault(iesFileText(other), other), "");
    EXPECT_EQ(readBackFault(iesFileText(smallRecord()), other), "a record that is none was read");
}

TEST(ReadBack, filesOfNoRecordAreNotWritten)
{
    OneBased<PhotometricRecord> records{smallRecord()};
    ReadBackFiles files(records);
    const std::string text = iesFileText(records(1));
    EXPECT_EQ(files.replace("small.ies", text), 0);
    EXPECT_THROW(files.replace("other.ies", text), std::logic_error);
    records(1).NumLamps = 7;
    EXPECT_THROW(files.replace("small.ies", text), std::logic_error);
    EXPECT_EQ(files.replace("small.ies", iesFileText(records(1))), 0);
    records(1).Filename = "another.ies";
    EXPECT_EQ(files.replace("small.ies", iesFileText(records(1))), 0) << "the record that had the name last";
}

}  // namespace
}  // namespace penwright::test
