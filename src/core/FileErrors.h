#pragma once

#include <string>

#include "platform/RunTimeError.h"

namespace penwright {

/// The run-time error that a failed file operation stands for, by its errno. The one place where errno gets a number.
RunTimeError errorFromErrno(int errnoValue);

/// The text that tells the user about an error while saving: the fixed text of its number, or number, description and
/// source for any other.
std::string savingErrorText(const RunTimeError &error);

/// The same with the line that asks whether to try again.
std::string writingQuestionText(const RunTimeError &error);

/// The sentence that tells the user why a file could not be read, with the file's name.
std::string readingErrorText(const std::string &path, int errnoValue);

}  // namespace penwright
