#include <algorithm>
#include <map>

#include "fuzz/Fuzz.h"
#include "hostlink/RecordText.h"

using namespace penwright;

namespace {

using Texts = std::map<std::string, std::string, std::less<>>;

Texts textsOf(const PhotometricRecord &record)
{
    Texts texts;
    writeRecordTexts(record, [&](std::string_view word, std::string text) { texts.emplace(word, std::move(text)); });
    return texts;
}

ReadRecord recordOf(const Texts &texts)
{
    return readRecordTexts([&](std::string_view word) {
        const auto found = texts.find(word);
        return found == texts.end() ? std::string() : found->second;
    });
}

}  // namespace

/// The eleven texts, in table order, with a 0x1F between two of them.
int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    constexpr char kBetween = '\x1F';
    const auto parts = test::partsOf(test::textOf(data, size), kBetween, kRecordWords.size());
    Texts texts;
    for (std::size_t i = 0; i < kRecordWords.size(); ++i)
        texts.emplace(kRecordWords[i], parts[i]);
    const ReadRecord read = recordOf(texts);
    if (!read.problem.empty())
        return 0;
    const Texts written = textsOf(read.record);
    const ReadRecord again = recordOf(written);
    test::require(again.problem.empty(), "a record that was read can be handed on");
    test::require(textsOf(again.record) == written, "a record that is handed on stays the same");
    return 0;
}
