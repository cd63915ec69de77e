#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace penwright {

/// The general form of numbers in files, cells, captions, messages and on the clipboard: at most 7 significant digits
/// for singles and 15 for doubles, no trailing zeros, the exponent form ("1E+07") from 10^7 or 10^15 up and below
/// 0.0001, always a point, "0" for negative zero.
std::string generalText(float value);
std::string generalText(double value);
std::string generalText(int value);

/// Appends the general form without making a text of its own.
void appendGeneralText(std::string &text, double value);

/// The store form: the general form without the zero before the point (".5", "-.5").
std::string storeText(float value);
std::string storeText(double value);
std::string storeText(int value);
void appendStoreText(std::string &text, double value);

/// Whether the text is one plain finite decimal number: blanks around, at most one sign, digits with at most one point
/// and at least one digit, optionally an exponent. Grouping, commas, currency, hex, "inf" and "nan" are none.
bool isNumeric(std::string_view text);

/// The number that a text begins with (blanks before it are skipped), 0 when there is none; error 6 beyond a double.
double leadingNumber(std::string_view text);

/// The value of a numeric text; error 13 when it is not numeric.
double toDouble(std::string_view text);

/// Whether the nearest single is a number.
bool fitsSingle(double value);

/// The value narrowed to the nearest single; error 6 beyond the single range, 13 when the text is not numeric.
float toSingle(std::string_view text);
float toSingle(double value);

/// The value rounded half to even; error 6 beyond the range of the type, 13 when the text is not numeric.
std::int16_t toInt16(std::string_view text);
std::int16_t toInt16(double value);
std::int32_t toInt32(std::string_view text);
std::int32_t toInt32(double value);

}  // namespace penwright
