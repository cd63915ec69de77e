#include "core/IesReader.h"
#include "core/IesText.h"
#include "core/TextBytes.h"
#include "fuzz/Fuzz.h"
#include "platform/RunTimeError.h"

using namespace penwright;

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const auto reading = readIesFile(test::textOf(data, size));
    if (const auto *fault = std::get_if<IesFault>(&reading)) {
        test::require(fault->text.starts_with("Line " + std::to_string(fault->line) + ": "), "a fault names its line");
        test::require(isUtf8(fault->text), "a fault is said in UTF-8");
        return 0;
    }
    PhotometricRecord record = std::get<IesContent>(reading).record;
    test::require(record.VertAngles.size() == record.NumVertAngles && record.Candela.rows() == record.NumHorzAngles &&
                      record.TiltMultipliers.size() == record.NumTiltAngles,
                  "counts and lists agree");
    if (record.Keywords.empty())
        record.Keywords.append("IESNA91");
    std::string text;
    try {
        text = iesFileText(record);
    } catch (const RunTimeError &) {  // a line longer than the writer counts
        return 0;
    }
    const auto again = readIesFile(text);
    test::require(std::holds_alternative<IesContent>(again), "what is written of a file is read");
    test::require(iesFileText(std::get<IesContent>(again).record) == text, "what is written of a file stays the same");
    return 0;
}
