#include "core/FileErrors.h"

#include <cerrno>
#include <vector>

namespace penwright {
namespace {

struct TextCase {
    int number;
    std::string text;
};

class SavingText : public testing::TestWithParam<TextCase> {};

INSTANTIATE_TEST_SUITE_P(
    Table, SavingText,
    testing::ValuesIn(std::vector<TextCase>{
        {6, "Calculation Overflow"},
        {11, "Division by Zero"},
        {52, "Bad file name or number"},
        {53, "File not found. funny, I've got it!"},
        {55, "File is already open. Please close it in another application."},
        {57, "The device selected has encountered an error while saving this file. Try again, or choose another disk."},
        {58, "File already exists. Are you sure you want to save?"},
        {61, "Disk is full. Free up space on this disk or choose another."},
        {67, "Too many files in this directory (Old FAT filesystem?)."},
        {68, "Device unavailable. Insert the disk and try again."},
        {70, "Permission denied. Please be sure you have ownership of and that the file is not Read-Only."},
        {71, "Disk not ready. Please try again."},
        {75, "File is Read-Only. Cannot save."},
        {76, "Path not found. Please be sure to select a valid mounted device"},
        {440, "An intermediate component of the filesystem has failed."},
        {31001, "Out of memory (RAM). Please close some other applications and try again."},
        {31036, "Invalid file handle or insufficient disk space to save file."},
        {9, "Windows Error 9 what happened where"},
        {5, "Windows Error 5 what happened where"},
    }));

TEST_P(SavingText, isThatOfItsNumber)
{
    EXPECT_EQ(savingErrorText(RunTimeError(GetParam().number, "what happened", "where")), GetParam().text);
}

TEST(SavingText, fallbackNamesNumberDescriptionAndSource)
{
    EXPECT_EQ(savingErrorText(subscriptOutOfRange()), "Windows Error 9 Subscript out of range PenwrightPE");
}

TEST(SavingText, questionAddsOneLine)
{
    EXPECT_EQ(writingQuestionText(RunTimeError(61, "")),
              "Disk is full. Free up space on this disk or choose another.\r\nOK to Retry, Cancel to quit.");
}

struct ErrnoCase {
    int errnoValue;
    int number;
};

class Errno : public testing::TestWithParam<ErrnoCase> {};

INSTANTIATE_TEST_SUITE_P(Table, Errno,
                         testing::ValuesIn(std::vector<ErrnoCase>{
                             {ENOENT, 76},    {ENOTDIR, 76},   {EACCES, 70},   {EPERM, 70},      {EROFS, 75},
                             {ENOSPC, 61},    {EDQUOT, 61},    {EIO, 57},      {EISDIR, 52},     {ENAMETOOLONG, 52},
                             {EINVAL, 52},    {EMFILE, 67},    {ENODEV, 68},   {ENXIO, 68},      {ETXTBSY, 55},
                             {ENOMEM, 31001}, {ESTALE, 53},    {EEXIST, 58},   {ENFILE, 67},     {EBUSY, 71},
                             {ENOMEDIUM, 71}, {ENOTCONN, 440}, {ENOLINK, 440}, {EHOSTDOWN, 440}, {EBADF, 31036},
                         }));

TEST_P(Errno, hasItsNumber)
{
    EXPECT_EQ(errorFromErrno(GetParam().errnoValue).number(), GetParam().number);
}

TEST(Errno, withoutARowIsToldInTheSystemsWords)
{
    EXPECT_EQ(savingErrorText(errorFromErrno(ELOOP)), "Windows Error 51 Too many levels of symbolic links PenwrightPE");
}

TEST(RunTimeErrors, bearTheirDescriptions)
{
    EXPECT_EQ(invalidCall().description(), "Invalid procedure call or argument");
    EXPECT_EQ(invalidCall().number(), 5);
    EXPECT_EQ(overflow().description(), "Overflow");
    EXPECT_EQ(subscriptOutOfRange().description(), "Subscript out of range");
    EXPECT_EQ(typeMismatch().description(), "Type mismatch");
    EXPECT_EQ(typeMismatch().source(), "PenwrightPE");
}

TEST(ReadingErrorText, namesTheFileAndTheReason)
{
    EXPECT_EQ(readingErrorText("/home/me/a.csv", ENOENT), "\"a.csv\" is not there any more.");
    EXPECT_EQ(readingErrorText("a.csv", EACCES), "\"a.csv\" may not be read by you: permission denied.");
    EXPECT_EQ(readingErrorText("/a.csv", EISDIR), "\"a.csv\" is a folder, not a file.");
    EXPECT_EQ(readingErrorText("/a.csv", ENODEV), "\"a.csv\" is no file but a pipe or a device.");
    EXPECT_EQ(readingErrorText("/a.csv", EIO), "\"a.csv\" cannot be read: Input/output error.");
}

}  // namespace
}  // namespace penwright
