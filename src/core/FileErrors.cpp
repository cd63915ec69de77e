#include "core/FileErrors.h"

#include <algorithm>
#include <cerrno>
#include <iterator>
#include <string_view>
#include <system_error>

#include "core/TextBytes.h"

namespace penwright {
namespace {

struct ErrnoRow {
    int errnoValue;
    int number;
};

constexpr ErrnoRow kErrnoRows[]{
    {ENAMETOOLONG, 52}, {EISDIR, 52},     {EINVAL, 52},    {ESTALE, 53},   {ETXTBSY, 55}, {EIO, 57},     {EEXIST, 58},
    {ENOSPC, 61},       {EDQUOT, 61},     {EMFILE, 67},    {ENFILE, 67},   {ENODEV, 68},  {ENXIO, 68},   {EACCES, 70},
    {EPERM, 70},        {EBUSY, 71},      {ENOMEDIUM, 71}, {EROFS, 75},    {ENOENT, 76},  {ENOTDIR, 76}, {ENOLINK, 440},
    {ENOTCONN, 440},    {EHOSTDOWN, 440}, {ENOMEM, 31001}, {EBADF, 31036},
};

/// Number and description of an error that no row names: 75, path/file access error, would claim too much.
constexpr int kOtherSystemError = 51;

struct SavingTextRow {
    int number;
    std::string_view text;
};

constexpr SavingTextRow kSavingTexts[]{
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
};

struct ReadingTextRow {
    int errnoValue;
    std::string_view text;
};

constexpr ReadingTextRow kReadingTexts[]{
    {ENOENT, " is not there any more."},
    {ENOTDIR, " is not there any more."},
    {EACCES, " may not be read by you: permission denied."},
    {EPERM, " may not be read by you: permission denied."},
    {EISDIR, " is a folder, not a file."},
    {ENODEV, " is no file but a pipe or a device."},
    {EFBIG, " has more than 100 MB, far more than a table can have."},
    {ESTALE, " was changed while it was read. Choose it again."},
};

}  // namespace

RunTimeError errorFromErrno(int errnoValue)
{
    const std::string description = std::generic_category().message(errnoValue);
    const auto row = std::find_if(std::begin(kErrnoRows), std::end(kErrnoRows),
                                  [errnoValue](const ErrnoRow &r) { return r.errnoValue == errnoValue; });
    return RunTimeError(row == std::end(kErrnoRows) ? kOtherSystemError : row->number, description);
}

std::string savingErrorText(const RunTimeError &error)
{
    const auto row = std::find_if(std::begin(kSavingTexts), std::end(kSavingTexts),
                                  [&error](const SavingTextRow &r) { return r.number == error.number(); });
    if (row != std::end(kSavingTexts))
        return std::string(row->text);
    return "Windows Error " + std::to_string(error.number()) + " " + error.description() + " " + error.source();
}

std::string readingErrorText(const std::string &path, int errnoValue)
{
    const std::string name = shownWord(path.substr(path.rfind('/') + 1));
    const auto row = std::find_if(std::begin(kReadingTexts), std::end(kReadingTexts),
                                  [errnoValue](const ReadingTextRow &r) { return r.errnoValue == errnoValue; });
    if (row != std::end(kReadingTexts))
        return name + std::string(row->text);
    return name + " cannot be read: " + std::generic_category().message(errnoValue) + ".";
}

std::string writingQuestionText(const RunTimeError &error)
{
    return savingErrorText(error) + "\r\nOK to Retry, Cancel to quit.";
}

}  // namespace penwright
