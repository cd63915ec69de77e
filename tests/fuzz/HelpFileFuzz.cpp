#include "core/TextBytes.h"
#include "fuzz/Fuzz.h"
#include "help/chm/ChmHelpFile.h"
#include "platform/RunTimeError.h"

using namespace penwright;

namespace {

void readPage(HelpFile &file, const HelpPlace &place)
{
    try {
        test::require(isUtf8(file.page(place.topic)), "a page is UTF-8");
    } catch (const RunTimeError &error) {
        test::require(isUtf8(error.description()), "what is wrong with a page is said in UTF-8");
    }
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    try {
        const auto file = readChm("x.chm", std::string(test::textOf(data, size)));
        test::require(isUtf8(file->title()), "the title is UTF-8");
        readPage(*file, file->home());
        int depth = -1;
        for (const HelpEntry &entry : file->contents()) {
            test::require(isUtf8(entry.title), "a line of the contents is UTF-8");
            test::require(entry.depth >= 0 && entry.depth <= depth + 1, "a line is one deeper at most");
            depth = entry.depth;
            if (entry.place)
                readPage(*file, *entry.place);
        }
        for (int id = 202; id <= 207; ++id)
            if (const auto place = file->topicFor(id))
                readPage(*file, *place);
        for (const HelpText &text : file->texts())
            test::require(isUtf8(text.title) && isUtf8(text.text), "what is searched is UTF-8");
    } catch (const RunTimeError &error) {
        test::require(isUtf8(error.description()), "why a file is refused is said in UTF-8");
    }
    return 0;
}
