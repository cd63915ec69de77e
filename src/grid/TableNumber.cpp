#include "grid/TableNumber.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <string>

#include "core/Ascii.h"
#include "core/NumberText.h"
#include "grid/TableLines.h"

namespace penwright {
namespace {

struct SignRow {
    char sign;
    std::string_view text;
};

/// What stands for a sign between thousands, and for a minus.
constexpr std::array<SignRow, 8> kSigns{{{'.', "."},
                                         {',', ","},
                                         {'\'', "'"},
                                         {'\'', "\xE2\x80\x99"},
                                         {' ', " "},
                                         {' ', "\xC2\xA0"},
                                         {' ', "\xE2\x80\xAF"},
                                         {' ', "\xE2\x80\x89"}}};

/// The longest number that is written with signs between thousands.
constexpr std::size_t kLongestNumber = 60;

/// The length of a sign between thousands that a text begins with.
std::size_t signLength(std::string_view text, char sign)
{
    const auto row = std::find_if(kSigns.begin(), kSigns.end(), [text, sign](const SignRow &r) {
        return r.sign == sign && text.starts_with(r.text);
    });
    return row == kSigns.end() ? 0 : row->text.size();
}

/// Moves a minus or plus from the cell to the plain text.
void takeSign(std::string_view &cell, std::string &plain)
{
    for (const std::string_view minus : kMinusSigns)
        if (cell.starts_with(minus)) {
            cell.remove_prefix(minus.size());
            plain += '-';
            return;
        }
    if (cell.starts_with('+'))
        cell.remove_prefix(1);
}

/// Moves digits, in groups of three behind each sign between thousands; false when a group has another length.
bool takeWhole(std::string_view &cell, char thousandsSign, std::string &plain)
{
    std::size_t digits = 0;
    bool isGrouped = false;
    while (!cell.empty()) {
        if (isDigit(cell.front())) {
            plain += cell.front();
            cell.remove_prefix(1);
            ++digits;
            continue;
        }
        const std::size_t length = thousandsSign == kNoSign ? 0 : signLength(cell, thousandsSign);
        if (length == 0)
            break;
        const bool isFirstGroup = !isGrouped && digits >= 1 && digits <= 3 && plain[plain.size() - digits] != '0';
        if (!isFirstGroup && !(isGrouped && digits == 3))
            return false;
        isGrouped = true;
        digits = 0;
        cell.remove_prefix(length);
    }
    return !isGrouped || digits == 3;
}

/// The number in the form that the program reads; "" when the cell is none.
std::string plainNumber(std::string_view cell, const TableReading &reading)
{
    std::string plain;
    if (cell.size() > kLongestNumber)
        return plain;
    takeSign(cell, plain);
    if (!takeWhole(cell, reading.thousandsSign, plain))
        return "";
    if (cell.starts_with(reading.decimalSign)) {
        cell.remove_prefix(1);
        // "0, 5, 10" cut at its blanks is no list of decimals.
        if (reading.decimalSign == ',' && (cell.empty() || !isDigit(cell.front())))
            return "";
        plain += '.';
    }
    const bool isPlain = cell.find_first_not_of("0123456789eE+-") == std::string_view::npos;
    return isPlain ? plain.append(cell) : "";
}

/// A number as the program writes it, at the cost of reading it once.
std::optional<double> plainValue(std::string_view cell)
{
    double value = 0;
    const char *end = cell.data() + cell.size();
    // What is longer is no number, and would take its time.
    constexpr std::size_t kLongest = 1000;
    const bool begins = !cell.empty() && cell.size() <= kLongest &&
                        (isDigit(cell.front()) || cell.front() == '-' || cell.front() == '.');
    if (!begins || !(isDigit(cell.back()) || cell.back() == '.'))
        return std::nullopt;
    const auto read = std::from_chars(cell.data(), end, value);
    return read.ec == std::errc() && read.ptr == end ? std::optional(value) : std::nullopt;
}

constexpr std::array<TableReading, 8> kAllSigns = [] {
    std::array<TableReading, 8> all;
    std::size_t at = 0;
    for (const char decimal : {'.', ','})
        for (const char thousands : {kNoSign, decimal == '.' ? ',' : '.', '\'', ' '}) {
            all[at].decimalSign = decimal;
            all[at++].thousandsSign = thousands;
        }
    return all;
}();

}  // namespace

std::optional<double> tableNumber(std::string_view cell, const TableReading &reading)
{
    std::optional<double> value;
    if (reading.decimalSign == '.' && reading.thousandsSign != '.')
        value = plainValue(cell);
    if (!value) {
        const std::string plain = plainNumber(cell, reading);
        if (isNumeric(plain))
            value = leadingNumber(plain);
    }
    return value && fitsSingle(*value) ? value : std::nullopt;
}

bool isLikeNumber(std::string_view cell)
{
    if (plainValue(cell))
        return true;
    if (cell.empty() || cell.find_first_of("0123456789") == std::string_view::npos || cell.size() > kLongestNumber)
        return false;
    return std::any_of(kAllSigns.begin(), kAllSigns.end(),
                       [cell](const TableReading &signs) { return tableNumber(cell, signs).has_value(); });
}

std::string_view signAdvice(std::string_view text)
{
    return isLikeNumber(text) && !isNumeric(text) ? "The decimal sign is a point, as in 2481.37." : "";
}

std::string whyNoNumber(std::string_view text)
{
    const std::string_view advice = signAdvice(text);
    return " is not a number." + (advice.empty() ? "" : ' ' + std::string(advice));
}

}  // namespace penwright
