#pragma once

#include <string>

namespace penwright {

/// A reckoned number as figures and remarks say it: whole from 100 up, three digits below and from 1E+15 up, ","
/// between thousands.
std::string roundedText(double number);

/// A number of the record with the digits that it was typed with, at most seven, "," between thousands.
std::string typedText(double number);

}  // namespace penwright
