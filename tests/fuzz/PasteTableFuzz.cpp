#include <algorithm>

#include "core/TextBytes.h"
#include "fuzz/Fuzz.h"
#include "grid/TableText.h"

using namespace penwright;

namespace {

/// A reading as a user may choose it, whatever the text looks like.
TableReading readingFrom(const std::uint8_t *data)
{
    constexpr char kThousands[]{kNoSign, '.', ',', '\'', ' '};
    TableReading reading;
    reading.separator = static_cast<TableSeparator>(data[0] % 4);
    reading.decimalSign = data[0] & 0x10 ? ',' : '.';
    reading.thousandsSign = kThousands[data[1] % 5];
    reading.linesToSkip = data[1] >> 5;
    reading.hasAngleRow = data[0] & 0x20;
    reading.hasAngleColumn = data[0] & 0x40;
    reading.verticalDown = data[0] & 0x80;
    reading.isList = data[1] & 0x10;
    return reading;
}

void requireSense(std::string_view text, const TableReading &reading)
{
    const auto table = readTable(text, reading);
    if (const auto *fault = std::get_if<TableFault>(&table)) {
        const auto lines = std::count_if(text.begin(), text.end(), [](char c) { return c == '\n' || c == '\r'; }) + 1;
        test::require(!fault->text.empty(), "a fault is said");
        test::require(isUtf8(fault->text), "a fault is said in UTF-8");
        test::require(fault->line <= static_cast<std::size_t>(lines), "a fault stands in a line of the text");
        return;
    }
    const auto &content = std::get<TableContent>(table);
    test::require(content.values.rows() > 0 && content.values.columns() > 0, "a table has a value");
    test::require(content.vertical.empty() || content.vertical.size() == content.values.columns(),
                  "each vertical angle has its values");
    test::require(content.horizontal.empty() || content.horizontal.size() == content.values.rows(),
                  "each horizontal angle has its values");
    test::require(!tableMisfit(content, content.values.columns(), content.values.rows()), "a table fits its own size");
}

}  // namespace

/// Two bytes that choose a reading, then the bytes of a file.
int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    if (size < 2)
        return 0;
    const std::string text = utf8Text(test::textOf(data + 2, size - 2));
    test::require(isUtf8(text), "any bytes are a text");
    requireSense(text, guessTable(text));
    requireSense(text, readingFrom(data));
    return 0;
}
