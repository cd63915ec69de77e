#pragma once

#include <algorithm>
#include <map>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>

#include "core/IesReader.h"
#include "core/IesText.h"
#include "core/NumberText.h"
#include "support/FakeTextFiles.h"

namespace penwright::test {

/// A record as its file says it: singles have seven digits there and candelas fifteen, and what is not in the file, as
/// what lists have beyond their counts, is not in the record.
inline PhotometricRecord asInTheFile(PhotometricRecord record)
{
    record.PictureFilename = record.Directory = record.Filename = record.OptionalData = "";
    record.RecordFlag = 0;
    if (!record.TiltIncl) {
        record.LampToLuminaireGeometry = record.NumTiltAngles = 0;
        record.TiltAngles.clear();
        record.TiltMultipliers.clear();
    }
    for (float *number : {&record.LumensPerLamp, &record.CandelaMultiplier, &record.Width, &record.Length,
                          &record.Height, &record.BallastFactor, &record.InputWatts})
        *number = toSingle(generalText(*number));
    const auto makeAsWritten = [](OneBased<float> &numbers, int count) {
        numbers.resize(count);
        for (float &number : numbers)
            number = toSingle(generalText(number));
    };
    makeAsWritten(record.TiltAngles, record.NumTiltAngles);
    makeAsWritten(record.TiltMultipliers, record.NumTiltAngles);
    makeAsWritten(record.VertAngles, record.NumVertAngles);
    makeAsWritten(record.HorAngles, record.NumHorzAngles);
    const OneBasedTable<double> values = std::exchange(record.Candela, {record.NumHorzAngles, record.NumVertAngles});
    for (int h = 1; h <= record.NumHorzAngles; ++h)
        for (int v = 1; v <= record.NumVertAngles; ++v)
            record.Candela(h, v) = toDouble(generalText(values(h, v)));
    return record;
}

/// Whether the record has what a file must have to be read: lists that are as long as they are said to be and rise, a
/// type, a unit, a geometry.
inline bool isReadable(const PhotometricRecord &record)
{
    const auto rises = [](const OneBased<float> &angles, int count) {
        return angles.size() >= count && std::is_sorted(angles.begin(), angles.begin() + count);
    };
    const auto isFrom1To = [](int code, int most) { return code >= 1 && code <= most; };
    const bool hasTilt = !record.TiltIncl || (isFrom1To(record.LampToLuminaireGeometry, 3) &&
                                              rises(record.TiltAngles, record.NumTiltAngles) &&
                                              record.TiltMultipliers.size() >= record.NumTiltAngles);
    return hasTilt && record.NumVertAngles > 0 && record.NumHorzAngles > 0 && isFrom1To(record.PhotometricType, 2) &&
           isFrom1To(record.UnitsType, 2) && rises(record.VertAngles, record.NumVertAngles) &&
           rises(record.HorAngles, record.NumHorzAngles) && record.Candela.rows() >= record.NumHorzAngles &&
           record.Candela.columns() >= record.NumVertAngles;
}

/// What is wrong when a written file is read back, "" when nothing is: it reads, and is written again byte by byte.
inline std::string readBackFault(std::string_view text)
{
    const auto reading = readIesFile(text);
    if (const auto *fault = std::get_if<IesFault>(&reading))
        return fault->text;
    return iesFileText(std::get<IesContent>(reading).record) == text ? "" : "another text is written of what was read";
}

/// The same of a file and the record that it was written of: what is read is that record, and a record that no file can
/// hold is refused.
inline std::string readBackFault(std::string_view text, const PhotometricRecord &record)
{
    const std::string fault = readBackFault(text);
    if (!isReadable(record))
        return fault.empty() ? "a record that is none was read" : "";
    if (!fault.empty())
        return fault;
    return std::get<IesContent>(readIesFile(text)).record == asInTheFile(record) ? "" : "another record was read";
}

/// The records that files are written of, found by the files' names.
class WrittenRecords {
public:
    /// What is wrong with a file that is written at `path`, of the first of the records if that has its name, else of
    /// the record that had it when it was written last.
    std::string faultOf(const std::string &path, std::string_view text, const OneBased<PhotometricRecord> &records)
    {
        if (!records.empty() && records(1).Filename == path)
            m_records[path] = records(1);
        const std::string fault =
            m_records.count(path) == 0 ? "it is no record's" : readBackFault(text, m_records[path]);
        return fault.empty() ? "" : path + " is not read back: " + fault;
    }

private:
    std::map<std::string, PhotometricRecord> m_records;
};

/// Files that are noted, each of them read back and compared with the record that it is written of.
struct ReadBackFiles : FakeTextFiles {
    explicit ReadBackFiles(const OneBased<PhotometricRecord> &all) : records(all) {}

    /// Throws when a file that is written is not read back.
    int replace(const std::string &path, std::string_view text) override
    {
        const std::string fault = m_written.faultOf(path, text, records);
        const int error = FakeTextFiles::replace(path, text);
        if (error == 0 && !fault.empty())
            throw std::logic_error(fault);
        return error;
    }

    const OneBased<PhotometricRecord> &records;

private:
    WrittenRecords m_written;
};

}  // namespace penwright::test
