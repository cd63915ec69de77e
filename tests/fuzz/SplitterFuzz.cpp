#include "core/SplitCommandText.h"
#include "fuzz/Fuzz.h"

using namespace penwright;

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const SplitText split = SplitCommandText(test::textOf(data, size));
    test::require(split.lineCount == split.lines.size(), "lines are counted");
    test::require(split.table.lines() == split.lineCount, "each line is cut");
    for (int line = 1; line <= split.lineCount; ++line) {
        test::require(!split.lines(line).empty(), "empty lines are skipped");
        std::string joined(split.table(line, 1));
        for (int field = 2; field <= split.fieldCount; ++field)
            if (joined.size() < split.lines(line).size())
                (joined += ',') += split.table(line, field);
            else
                test::require(split.table(line, field).empty(), "there are no fields behind a line");
        test::require(joined == split.lines(line), "the fields are the line");
    }
    return 0;
}
