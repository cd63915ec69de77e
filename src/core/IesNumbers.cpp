#include "core/IesNumbers.h"

#include <charconv>
#include <cmath>

#include "core/Ascii.h"
#include "core/LineEnds.h"
#include "core/NumberText.h"
#include "core/TextBytes.h"

namespace penwright {
namespace {

constexpr std::string_view kWhiteSpace = " \t\r\n\v\f";
constexpr std::size_t kNumbersBetweenQuestions = 100'000;

bool isWhite(char c)
{
    return c == ' ' || (c >= '\t' && c <= '\r');
}

bool endsNumber(char c)
{
    return isWhite(c) || c == ',';
}

/// Where the digits of a number begin, behind the "+" that std::from_chars does not know; nothing where no number can
/// begin, "inf" and "nan" among it.
const char *beginOfNumber(const char *at, const char *end)
{
    const char *digit = at + (*at == '+' || *at == '-' ? 1 : 0);
    if (digit == end || (*digit != '.' && !isDigit(*digit)))
        return nullptr;
    return *at == '+' ? digit : at;
}

}  // namespace

IesFault iesFaultAt(std::string_view file, std::size_t place, const std::string &wrong)
{
    const std::size_t line = lineNumberBehind(file.substr(0, place));
    return {line, "Line " + std::to_string(line) + ": " + wrong};
}

IesNumbers::IesNumbers(std::string_view file, std::size_t place, bool commasSeparate, IesFault &fault,
                       const std::function<bool(double)> &goOn)
    : m_file(file),
      m_at(file.data() + place),
      m_end(file.data() + file.size()),
      m_last(m_at),
      m_commasSeparate(commasSeparate),
      m_fault(fault),
      m_goOn(goOn)
{
}

double IesNumbers::number(std::string_view name)
{
    double value = 0;
    if (!isSound())
        return value;
    const Found found = next(value);
    if (found != Found::Number)
        refuse(found, std::string(name), "the file ends where " + std::string(name) + " belongs.");
    return value;
}

std::int16_t IesNumbers::whole(std::string_view name, std::int16_t least, std::int16_t most)
{
    const double value = number(name);
    if (value >= least && value <= most && value == std::floor(value))
        return static_cast<std::int16_t>(value);
    refuse(std::string(name) + " is " + generalText(value) + "; a whole number from " + std::to_string(least) + " to " +
           std::to_string(most) + " belongs there.");
    return 0;
}

OneBased<float> IesNumbers::list(std::string_view kind, int count)
{
    OneBased<float> numbers;
    readEach(kind, static_cast<std::size_t>(count),
             [&numbers](double value) { numbers.append(static_cast<float>(value)); });
    return numbers;
}

OneBased<float> IesNumbers::angles(std::string_view kind, int count)
{
    OneBased<float> numbers;
    readEach(kind, static_cast<std::size_t>(count), [&](double value) {
        const auto angle = static_cast<float>(value);
        if (!numbers.empty() && angle < numbers(numbers.size()))
            refuse(std::string(kind) + " " + generalText(angle) + " stands behind " +
                   generalText(numbers(numbers.size())) + "; angles must rise.");
        numbers.append(angle);
    });
    return numbers;
}

OneBasedTable<double> IesNumbers::table(std::string_view kind, int rows, int columns)
{
    const std::size_t count = static_cast<std::size_t>(rows) * static_cast<std::size_t>(columns);
    OneBasedTable<double> values;
    if (isSound() && isRoomFor(count))
        values.reset(rows, columns);
    int row = 1;
    int column = 1;
    readEach(kind, count, [&](double value) {
        if (row <= values.rows())
            values(row, column) = value;
        row += column == columns ? 1 : 0;
        column = column == columns ? 1 : column + 1;
    });
    return values;
}

void IesNumbers::expectEnd()
{
    while (m_at != m_end && endsNumber(*m_at))
        ++m_at;
    if (m_at == m_end)
        return;
    m_last = m_at;
    refuse(shownWord(wordFrom(m_at)) + " stands behind the last candela value that the file announces.");
}

template <typename Store>
void IesNumbers::readEach(std::string_view kind, std::size_t count, const Store &store)
{
    double value = 0;
    for (std::size_t i = 0; i < count && isSound(); ++i) {
        if (i % kNumbersBetweenQuestions == kNumbersBetweenQuestions - 1 && !goesOn()) {
            m_isStopped = true;
            return;
        }
        const Found found = next(value);
        if (found == Found::Number) {
            store(value);
            continue;
        }
        const std::string of = " of " + std::to_string(count);
        refuse(found, std::string(kind) + " " + std::to_string(i + 1) + of,
               "the file ends behind " + std::to_string(i) + of + " " + std::string(kind) + "s.");
    }
}

bool IesNumbers::goesOn() const
{
    return !m_goOn || m_goOn(static_cast<double>(m_at - m_file.data()) / static_cast<double>(m_file.size()));
}

/// Whether so many numbers can stand in what is left: each takes a character and all but the last a separator.
bool IesNumbers::isRoomFor(std::size_t count) const
{
    return static_cast<std::size_t>(m_end - m_at) / 2 + 1 >= count;
}

IesNumbers::Found IesNumbers::next(double &value)
{
    if (!skipSeparators())
        return Found::Comma;
    if (m_at == m_end)
        return Found::End;
    m_last = m_at;
    const char *begin = beginOfNumber(m_at, m_end);
    if (begin == nullptr)
        return Found::NoNumber;
    const auto read = std::from_chars(begin, m_end, value);
    if (read.ptr != m_end && !endsNumber(*read.ptr))
        return Found::NoNumber;
    if (read.ec != std::errc())
        return slowNext(read.ptr, value);
    if (!fitsSingle(value))
        return Found::TooLarge;
    m_at = read.ptr;
    return Found::Number;
}

/// A number that no double holds, which is 0 when it is too small for one.
IesNumbers::Found IesNumbers::slowNext(const char *end, double &value)
{
    const std::string_view number(m_at, static_cast<std::size_t>(end - m_at));
    if (!isNumeric(number))
        return Found::TooLarge;
    value = leadingNumber(number);
    m_at = end;
    return Found::Number;
}

/// Goes on to the next word; false at a comma that separates no numbers.
bool IesNumbers::skipSeparators()
{
    int commas = 0;
    for (; m_at != m_end && endsNumber(*m_at); ++m_at) {
        if (*m_at != ',')
            continue;
        const bool isPlain = m_commasSeparate || m_at + 1 == m_end || isWhite(m_at[1]);
        if (!isPlain || ++commas > 1)
            return false;
    }
    return true;
}

std::string_view IesNumbers::wordFrom(const char *begin) const
{
    const std::string_view rest(begin, static_cast<std::size_t>(m_end - begin));
    return rest.substr(0, rest.find_first_of(kWhiteSpace));
}

void IesNumbers::refuse(const std::string &wrong)
{
    if (isSound())
        m_fault = iesFaultAt(m_file, static_cast<std::size_t>(m_last - m_file.data()), wrong);
}

void IesNumbers::refuse(Found found, const std::string &wanted, const std::string &atEnd)
{
    if (found == Found::End) {
        m_fault = iesFaultAt(m_file, m_file.find_last_not_of(kWhiteSpace), atEnd);
        return;
    }
    const char *begin = found == Found::Comma ? m_at : m_last;
    while (begin != m_last && !isWhite(begin[-1]))
        --begin;
    m_last = begin;
    const std::string word = shownWord(wordFrom(begin));
    if (found == Found::Comma)
        refuse("the comma in " + word +
               " does not belong there; write a point for decimals and blanks between numbers.");
    else
        refuse(word + (found == Found::TooLarge ? " is too large a number; " : " is no number; ") + wanted +
               " belongs there.");
}

}  // namespace penwright
