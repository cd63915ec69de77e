#include <array>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstring>

#include "core/NumberText.h"

namespace penwright {
namespace {

constexpr int kMaxTextLength = 32;
__extension__ using Wide = unsigned __int128;

constexpr std::array<std::uint64_t, 19> kPowersOfTen = [] {
    std::array<std::uint64_t, 19> powers{};
    std::uint64_t power = 1;
    for (auto &entry : powers) {
        entry = power;
        power *= 10;
    }
    return powers;
}();

/// From here on a double takes the exponent form.
constexpr double kLimitOfFastForm = 1e15;

char *digitsOf(char *end, std::uint64_t number)
{
    return std::to_chars(end, end + 20, number).ptr;
}

/// The decimal exponent of the number's first digit: 0 for 1 to 9.99, -1 for 0.1 to 0.99.
int firstDigitExponent(double magnitude)
{
    if (magnitude >= 1) {
        int exponent = 0;
        while (exponent < 15 && magnitude >= static_cast<double>(kPowersOfTen[static_cast<std::size_t>(exponent) + 1]))
            ++exponent;
        return exponent;
    }
    return magnitude >= 1e-1 ? -1 : magnitude >= 1e-2 ? -2 : magnitude >= 1e-3 ? -3 : -4;
}

/// The magnitude times 10^decimals, rounded half to even on the exact binary value, as C's "%G" rounds.
/// Needs 1e-4 <= magnitude < 1e15 and decimals <= 18: the product then fits into 113 bits.
std::uint64_t scaled(double magnitude, int decimals)
{
    const auto bits = std::bit_cast<std::uint64_t>(magnitude);
    const std::uint64_t mantissa = (bits & 0xFFFFFFFFFFFFFULL) | 0x10000000000000ULL;
    const int shift = 1075 - static_cast<int>(bits >> 52);
    const Wide product = static_cast<Wide>(mantissa) * kPowersOfTen[static_cast<std::size_t>(decimals)];
    const Wide half = static_cast<Wide>(1) << (shift - 1);
    const Wide rest = product & ((half << 1) - 1);
    auto quotient = static_cast<std::uint64_t>(product >> shift);
    if (rest > half || (rest == half && (quotient & 1)))
        ++quotient;
    return quotient;
}

/// Writes whole part, point and decimals without trailing zeros.
char *writeFixed(char *out, std::uint64_t number, int decimals)
{
    const std::uint64_t unit = kPowersOfTen[static_cast<std::size_t>(decimals)];
    out = digitsOf(out, number / unit);
    std::uint64_t fraction = number % unit;
    if (fraction == 0)
        return out;
    while (fraction % 10 == 0) {
        fraction /= 10;
        --decimals;
    }
    *out++ = '.';
    for (char *place = out + decimals; place != out; fraction /= 10)
        *--place = static_cast<char>('0' + fraction % 10);
    return out + decimals;
}

/// The form of any value, by the library: correct everywhere, but several times slower.
template <typename Number>
char *writeByLibrary(char *out, Number value, int digits)
{
    char *end = std::to_chars(out, out + kMaxTextLength, value, std::chars_format::general, digits).ptr;
    for (char *place = out; place != end; ++place)
        if (*place >= 'a' && *place <= 'z')
            *place = static_cast<char>(*place - 'a' + 'A');
    return end;
}

char *writeDouble(char *out, double value)
{
    if (value == 0) {
        *out = '0';
        return out + 1;
    }
    const double magnitude = std::fabs(value);
    if (!(magnitude >= 1e-4 && magnitude < kLimitOfFastForm))
        return writeByLibrary(out, value, 15);
    char *start = out;
    if (value < 0)
        *out++ = '-';
    const auto whole = static_cast<std::uint64_t>(magnitude);
    if (static_cast<double>(whole) == magnitude)
        return digitsOf(out, whole);
    int decimals = 14 - firstDigitExponent(magnitude);
    std::uint64_t number = scaled(magnitude, decimals);
    if (number >= kPowersOfTen[15]) {
        // Rounding has made one digit more; from 10^15 on that is the exponent form.
        if (decimals == 0)
            return writeByLibrary(start, value, 15);
        number = scaled(magnitude, --decimals);
    }
    return writeFixed(out, number, decimals);
}

/// Appends general text; in the store form without the zero before the point.
void append(std::string &text, const char *begin, const char *end, bool storeForm)
{
    if (storeForm) {
        const char *digits = begin + (*begin == '-' ? 1 : 0);
        if (end - digits > 1 && digits[0] == '0' && digits[1] == '.') {
            text.append(begin, digits);
            text.append(digits + 1, end);
            return;
        }
    }
    text.append(begin, end);
}

void appendNumber(std::string &text, double value, bool storeForm)
{
    std::array<char, kMaxTextLength> buffer;
    append(text, buffer.data(), writeDouble(buffer.data(), value), storeForm);
}

std::string singleText(float value, bool storeForm)
{
    std::array<char, kMaxTextLength> buffer;
    std::string text;
    const float positiveZero = value == 0 ? 0.0F : value;
    append(text, buffer.data(), writeByLibrary(buffer.data(), positiveZero, 7), storeForm);
    return text;
}

}  // namespace

void appendGeneralText(std::string &text, double value)
{
    appendNumber(text, value, false);
}

void appendStoreText(std::string &text, double value)
{
    appendNumber(text, value, true);
}

std::string generalText(double value)
{
    std::string text;
    appendGeneralText(text, value);
    return text;
}

std::string storeText(double value)
{
    std::string text;
    appendStoreText(text, value);
    return text;
}

std::string generalText(float value)
{
    return singleText(value, false);
}

std::string storeText(float value)
{
    return singleText(value, true);
}

std::string generalText(int value)
{
    return std::to_string(value);
}

std::string storeText(int value)
{
    return std::to_string(value);
}

}  // namespace penwright
