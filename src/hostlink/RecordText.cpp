#include "hostlink/RecordText.h"

#include <cstdint>
#include <utility>

#include "core/NumberText.h"
#include "core/SplitCommandText.h"

namespace penwright {
namespace {

constexpr std::string_view kLineEnd = "\r\n";

/// Numbers of one text, joined by commas.
class NumberList {
public:
    template <typename Number>
    NumberList &add(Number number)
    {
        if (!m_text.empty())
            m_text += ',';
        m_text += storeText(number);
        return *this;
    }
    NumberList &add(double number)
    {
        if (!m_text.empty())
            m_text += ',';
        appendStoreText(m_text, number);
        return *this;
    }
    NumberList &add(const OneBased<float> &numbers, int count)
    {
        for (int i = 1; i <= count; ++i)
            add(numbers(i));
        return *this;
    }
    std::string text() { return std::move(m_text); }

private:
    std::string m_text;
};

std::string keywordLines(const PhotometricRecord &record)
{
    std::string text;
    for (const std::string &line : record.Keywords)
        text.append(line).append(kLineEnd);
    return text;
}

std::string tiltText(const PhotometricRecord &record)
{
    return NumberList()
        .add(int{record.LampToLuminaireGeometry})
        .add(int{record.NumTiltAngles})
        .add(record.TiltAngles, record.NumTiltAngles)
        .add(record.TiltMultipliers, record.NumTiltAngles)
        .text();
}

std::string otherText(const PhotometricRecord &record)
{
    return NumberList()
        .add(int{record.NumLamps})
        .add(record.LumensPerLamp)
        .add(record.CandelaMultiplier)
        .add(int{record.PhotometricType})
        .add(int{record.UnitsType})
        .add(record.Width)
        .add(record.Length)
        .add(record.Height)
        .add(record.BallastFactor)
        .add(record.InputWatts)
        .text();
}

std::string angleText(const OneBased<float> &angles, int count)
{
    return NumberList().add(count).add(angles, count).text();
}

std::string candelaText(const PhotometricRecord &record)
{
    NumberList list;
    for (int h = 1; h <= record.NumHorzAngles; ++h)
        for (int v = 1; v <= record.NumVertAngles; ++v)
            list.add(record.Candela(h, v));
    return list.text();
}

/// The comma-separated fields of a text's first line, one after the other. A field that is not there is error 9.
class FieldReader {
public:
    explicit FieldReader(std::string_view text) : m_table(SplitCommandText(text).table) {}

    double number() { return leadingNumber(m_table(1, ++m_field)); }
    float single() { return toSingle(number()); }
    std::int16_t whole() { return toInt16(number()); }

    std::int16_t count()
    {
        const std::int16_t value = whole();
        if (value < 0)
            throw subscriptOutOfRange();
        return value;
    }

    void singles(OneBased<float> &numbers, int count)
    {
        numbers.clear();
        for (int i = 1; i <= count; ++i)
            numbers.append(single());
    }

    int fields() const { return m_table.fields(); }

private:
    FieldTable m_table;
    int m_field = 0;  ///< the one read last
};

using Texts = std::function<std::string(std::string_view)>;

void readKeywordCount(PhotometricRecord &record, const Texts &read)
{
    record.Keywords.reset(toInt16(leadingNumber(read("Keywords"))));
}

/// The first line of `rest`, ended by CR LF or by LF alone, and takes it off.
std::string_view takeLine(std::string_view &rest)
{
    const std::size_t end = rest.find('\n');
    if (end == std::string_view::npos)
        return std::exchange(rest, {});
    std::string_view line = rest.substr(0, end);
    rest.remove_prefix(end + 1);
    if (line.ends_with('\r'))
        line.remove_suffix(1);
    return line;
}

// Not by the command splitter: an empty line is a keyword line too and keeps its place.
void readKeywords(PhotometricRecord &record, const Texts &read)
{
    const std::string text = record.Keywords.empty() ? "" : read("KeywordData");
    std::string_view rest = text;
    for (std::string &line : record.Keywords)
        line = takeLine(rest);
}

void readTiltIncluded(PhotometricRecord &record, const Texts &read)
{
    record.TiltIncl = leadingNumber(read("TiltIncl")) != 0;
}

void readTilt(PhotometricRecord &record, const Texts &read)
{
    if (!record.TiltIncl)
        return;
    FieldReader fields(read("TiltData"));
    record.LampToLuminaireGeometry = fields.whole();
    record.NumTiltAngles = fields.count();
    fields.singles(record.TiltAngles, record.NumTiltAngles);
    fields.singles(record.TiltMultipliers, record.NumTiltAngles);
}

void readOther(PhotometricRecord &record, const Texts &read)
{
    FieldReader fields(read("OtherData"));
    record.NumLamps = fields.whole();
    record.LumensPerLamp = fields.single();
    record.CandelaMultiplier = fields.single();
    record.PhotometricType = fields.whole();
    record.UnitsType = fields.whole();
    record.Width = fields.single();
    record.Length = fields.single();
    record.Height = fields.single();
    record.BallastFactor = fields.single();
    record.InputWatts = fields.single();
}

void readAngles(std::string_view text, std::int16_t &count, OneBased<float> &angles)
{
    FieldReader fields(text);
    count = fields.count();
    fields.singles(angles, count);
}

void readCandela(PhotometricRecord &record, const Texts &read)
{
    FieldReader fields(read("Candela"));
    // Counted first: a host's counts alone must not make the program ask for gigabytes.
    if (fields.fields() < std::int64_t{record.NumHorzAngles} * record.NumVertAngles)
        throw subscriptOutOfRange();
    record.Candela.reset(record.NumHorzAngles, record.NumVertAngles);
    for (int h = 1; h <= record.NumHorzAngles; ++h)
        for (int v = 1; v <= record.NumVertAngles; ++v)
            record.Candela(h, v) = fields.number();
}

/// Whether an error tells of the text, not of the store that it came from.
bool isParsingError(const RunTimeError &error)
{
    return error.number() == overflow().number() || error.number() == subscriptOutOfRange().number();
}

/// One step of reading, and what stands in the log when its value cannot be parsed.
struct ReadStep {
    std::string_view problem;
    void (*run)(PhotometricRecord &, const Texts &);
};

constexpr ReadStep kReadSteps[]{
    {"(Filename)", [](PhotometricRecord &record, const Texts &read) { record.Filename = read("Filename"); }},
    {"(#Keywords)", readKeywordCount},
    {"(Keywords)", readKeywords},
    {"(TiltInclude)", readTiltIncluded},
    {"Problem parsing tilt data", readTilt},
    {"Problem parsing other data", readOther},
    {"Problem parsing vertical angles",
     [](PhotometricRecord &record, const Texts &read) {
         readAngles(read("VertAngles"), record.NumVertAngles, record.VertAngles);
     }},
    {"Problem parsing horizontal angles",
     [](PhotometricRecord &record, const Texts &read) {
         readAngles(read("HorAngles"), record.NumHorzAngles, record.HorAngles);
     }},
    {"(Candela)", readCandela},
    {"(OptionalData)",
     [](PhotometricRecord &record, const Texts &read) { record.OptionalData = read("OptionalData"); }},
    {"(PictureFile)",
     [](PhotometricRecord &record, const Texts &read) { record.PictureFilename = read("PictureFilename"); }},
};

}  // namespace

std::string recordValueName(std::string_view word, int fileNumber)
{
    return std::string(word) + std::to_string(fileNumber);
}

void writeRecordTexts(const PhotometricRecord &record,
                      const std::function<void(std::string_view word, std::string text)> &write)
{
    write("Filename", record.Filename);
    write("Keywords", storeText(record.Keywords.size()));
    if (!record.Keywords.empty())
        write("KeywordData", keywordLines(record));
    write("TiltIncl", record.TiltIncl ? "-1" : "0");
    if (record.TiltIncl)
        write("TiltData", tiltText(record));
    write("OtherData", otherText(record));
    write("HorAngles", angleText(record.HorAngles, record.NumHorzAngles));
    write("VertAngles", angleText(record.VertAngles, record.NumVertAngles));
    write("Candela", candelaText(record));
    write("OptionalData", record.OptionalData);
    write("PictureFilename", record.PictureFilename);
}

ReadRecord readRecordTexts(const std::function<std::string(std::string_view word)> &read)
{
    ReadRecord loaded;
    for (const ReadStep &step : kReadSteps) {
        try {
            step.run(loaded.record, read);
        } catch (const RunTimeError &error) {
            if (!isParsingError(error))
                throw;
            loaded.problem = step.problem;
            break;
        }
    }
    return loaded;
}

}  // namespace penwright
