#include "core/IesReader.h"

#include <algorithm>
#include <limits>
#include <utility>

#include "core/Ascii.h"
#include "core/FormatYear.h"
#include "core/LineEnds.h"
#include "core/TextBytes.h"

namespace penwright {
namespace {

constexpr std::int16_t kMost = std::numeric_limits<std::int16_t>::max();
constexpr std::int16_t kLeast = std::numeric_limits<std::int16_t>::min();
constexpr std::int16_t kTypeA = 3;
constexpr int kLastYearWithCommas = 1995;

std::string_view trimmed(std::string_view text)
{
    constexpr std::string_view kWhite = " \t\v\f";
    text.remove_prefix(std::min(text.find_first_not_of(kWhite), text.size()));
    return text.substr(0, text.find_last_not_of(kWhite) + 1);
}

/// The text without a Ctrl+Z and the padding behind it, which old programs end files with.
std::string_view withoutEndMark(std::string_view text)
{
    const std::size_t last = text.find_last_not_of(std::string_view("\x1A\0 \t\r\n", 6));
    const std::size_t mark = text.find('\x1A', last == std::string_view::npos ? 0 : last + 1);
    return text.substr(0, mark);
}

/// One file while it is read. The first fault stays.
class IesFileReading {
public:
    IesFileReading(std::string_view text, const std::function<bool(double)> &goOn) : m_text(text), m_goOn(goOn) {}

    std::variant<IesContent, IesFault> run();

private:
    void readHeader();
    void readVersion(std::string_view line, std::size_t place);
    void readTiltLine(std::string_view what, std::size_t place);
    void readNumbers();
    void readTilt(IesNumbers &numbers);
    void readPhotometricLine(IesNumbers &numbers);
    void readTable(IesNumbers &numbers);
    void refuse(std::size_t place, const std::string &wrong);
    bool isSound() const { return m_fault.text.empty(); }

    std::string_view m_text;
    const std::function<bool(double)> &m_goOn;
    std::size_t m_place = 0;  ///< behind the lines that are read
    bool m_hasVersion = false;
    bool m_isStopped = false;
    IesContent m_content;
    IesFault m_fault;
};

std::variant<IesContent, IesFault> IesFileReading::run()
{
    if (const std::size_t place = m_text.find('\0'); place != std::string_view::npos)
        refuse(place, "a character with the code 0 stands there; this is no IES file.");
    if (isSound())
        readHeader();
    if (isSound())
        readNumbers();
    if (m_isStopped || !isSound())
        return std::move(m_fault);
    return std::move(m_content);
}

/// All lines up to the one that begins with "TILT=".
void IesFileReading::readHeader()
{
    while (m_place < m_text.size()) {
        const std::size_t begin = m_place;
        const std::string_view rest = m_text.substr(begin);
        const std::string_view line = rest.substr(0, rest.find_first_of("\r\n"));
        m_place += line.size() + lineEndLength(rest.substr(line.size()));
        const std::string_view said = trimmed(line);
        const std::string_view behindTilt = trimmed(said.substr(std::min<std::size_t>(4, said.size())));
        if (behindTilt.starts_with('=') && upperCase(said.substr(0, 4)) == "TILT")
            return readTiltLine(trimmed(behindTilt.substr(1)), begin);
        if (!m_hasVersion && !said.empty())
            readVersion(said, begin);
        if (m_content.record.Keywords.size() == kMost)
            return refuse(begin, "no line before this one begins with TILT=; it is no IES file.");
        m_content.record.Keywords.append(utf8Part(line));
    }
    refuse(m_text.find_last_not_of(" \r\n") + 1,
           "the file ends without a line that begins with TILT=; it is no IES file, or its end is missing.");
}

/// A line that names no version is the first one of a file of 1986.
void IesFileReading::readVersion(std::string_view line, std::size_t place)
{
    m_hasVersion = true;
    const std::string word = upperCase(line.substr(0, line.find_first_of(" \t")));
    if (const int year = formatYear(line); year > 0)
        m_content.year = year;
    else if (word.starts_with("IES:LM-63-") || word.starts_with("IESNA:LM-63-"))
        refuse(place, shownWord(word) + " is a version that is not known here.");
}

void IesFileReading::readTiltLine(std::string_view what, std::size_t place)
{
    const std::string word = upperCase(what);
    m_content.record.TiltIncl = word == "INCLUDE";
    if (what.empty())
        refuse(place, "NONE, INCLUDE or the name of a file belongs behind TILT=.");
    else if (word != "INCLUDE" && word != "NONE")
        m_content.tiltFile = utf8Part(what);
}

void IesFileReading::readNumbers()
{
    IesNumbers numbers(m_text, m_place, m_content.year <= kLastYearWithCommas, m_fault, m_goOn);
    readTilt(numbers);
    readPhotometricLine(numbers);
    m_content.record.BallastFactor = static_cast<float>(numbers.number("the ballast factor"));
    m_content.ballastLampFactor = numbers.number("the second number of the ballast line");
    m_content.record.InputWatts = static_cast<float>(numbers.number("the input watts"));
    readTable(numbers);
    m_isStopped = !numbers.isSound() && isSound();
    if (!m_isStopped)
        numbers.expectEnd();
}

void IesFileReading::readTilt(IesNumbers &numbers)
{
    PhotometricRecord &record = m_content.record;
    if (!record.TiltIncl)
        return;
    record.LampToLuminaireGeometry = numbers.whole("the lamp-to-luminaire geometry", 1, 3);
    record.NumTiltAngles = numbers.whole("the number of tilt angles", 0, kMost);
    record.TiltAngles = numbers.angles("tilt angle", record.NumTiltAngles);
    record.TiltMultipliers = numbers.list("tilt factor", record.NumTiltAngles);
}

void IesFileReading::readPhotometricLine(IesNumbers &numbers)
{
    PhotometricRecord &record = m_content.record;
    record.NumLamps = numbers.whole("the number of lamps", kLeast, kMost);
    record.LumensPerLamp = static_cast<float>(numbers.number("the lumens per lamp"));
    record.CandelaMultiplier = static_cast<float>(numbers.number("the candela multiplier"));
    record.NumVertAngles = numbers.whole("the number of vertical angles", 1, kMost);
    record.NumHorzAngles = numbers.whole("the number of horizontal angles", 1, kMost);
    record.PhotometricType = numbers.whole("the photometric type", kTypeC, kTypeA);
    if (record.PhotometricType == kTypeA)
        numbers.refuse("the photometric type is 3, type A; only types C and B are read here.");
    record.UnitsType = numbers.whole("the unit of the dimensions", kFeet, kMeters);
    record.Width = static_cast<float>(numbers.number("the width"));
    record.Length = static_cast<float>(numbers.number("the length"));
    record.Height = static_cast<float>(numbers.number("the height"));
}

void IesFileReading::readTable(IesNumbers &numbers)
{
    PhotometricRecord &record = m_content.record;
    record.VertAngles = numbers.angles("vertical angle", record.NumVertAngles);
    record.HorAngles = numbers.angles("horizontal angle", record.NumHorzAngles);
    record.Candela = numbers.table("candela value", record.NumHorzAngles, record.NumVertAngles);
}

void IesFileReading::refuse(std::size_t place, const std::string &wrong)
{
    if (isSound())
        m_fault = iesFaultAt(m_text, place, wrong);
}

}  // namespace

std::variant<IesContent, IesFault> readIesFile(std::string_view bytes, const std::function<bool(double)> &goOn)
{
    if (hasUtf16Mark(bytes)) {
        const std::string text = utf8Text(bytes);
        return IesFileReading(withoutEndMark(withoutUtf8Mark(text)), goOn).run();
    }
    return IesFileReading(withoutEndMark(withoutUtf8Mark(bytes)), goOn).run();
}

}  // namespace penwright
