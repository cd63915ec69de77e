#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "core/OneBased.h"

namespace penwright {

/// Why an IES file cannot be read.
struct IesFault {
    std::size_t line = 0;  ///< of the file, counted from 1
    std::string text;  ///< the whole sentence for the user, which begins with the line's number; "" when the reading
                       ///< was stopped
};

/// The fault at a place of the file: "Line 12: " and what is wrong there.
IesFault iesFaultAt(std::string_view file, std::size_t place, const std::string &wrong);

/// The numbers behind the TILT line of an IES file, one by one, in whatever lines they stand. The first fault stays and
/// ends the reading: from then on every number is 0 and every list is empty.
class IesNumbers {
public:
    /// Reads in `file` from `place` on. With `commasSeparate` a comma separates as a blank does; else one without white
    /// space behind it is a fault, because it may be meant as a decimal sign. Refers to `file`, `fault` and `goOn`,
    /// which is asked now and then with the part of the file that is read, 0 to 1, and ends the reading as a fault
    /// does.
    IesNumbers(std::string_view file, std::size_t place, bool commasSeparate, IesFault &fault,
               const std::function<bool(double)> &goOn);

    /// The next number, within the range of a single; `name` names it in a fault.
    double number(std::string_view name);

    /// The next number, which is whole and from `least` to `most`.
    std::int16_t whole(std::string_view name, std::int16_t least, std::int16_t most);

    /// As many numbers as are announced; `kind` names one of them in a fault. What is announced takes no memory, here
    /// as for the table: what stands in the file does.
    OneBased<float> list(std::string_view kind, int count);

    /// A list of angles; one below the one before it is a fault.
    OneBased<float> angles(std::string_view kind, int count);

    /// The values of a table, row by row.
    OneBasedTable<double> table(std::string_view kind, int rows, int columns);

    /// Anything left but white space is a fault.
    void expectEnd();

    bool isSound() const { return !m_isStopped && m_fault.text.empty(); }

    /// Notes a fault at the number read last, unless there is one already.
    void refuse(const std::string &wrong);

private:
    enum class Found { Number, End, NoNumber, TooLarge, Comma };

    Found next(double &value);
    Found slowNext(const char *end, double &value);
    bool skipSeparators();
    std::string_view wordFrom(const char *begin) const;
    bool goesOn() const;
    bool isRoomFor(std::size_t count) const;
    void refuse(Found found, const std::string &wanted, const std::string &atEnd);
    template <typename Store>
    void readEach(std::string_view kind, std::size_t count, const Store &store);

    std::string_view m_file;
    const char *m_at;
    const char *m_end;
    const char *m_last;  ///< where the number read last begins
    bool m_commasSeparate;
    IesFault &m_fault;
    const std::function<bool(double)> &m_goOn;
    bool m_isStopped = false;
};

}  // namespace penwright
