#include "pages/keywords/KeywordDefaults.h"

#include "core/CodePoints.h"
#include "platform/RunTimeError.h"

namespace penwright {
namespace {

constexpr std::string_view kApplication = "Lumentor32";
constexpr std::string_view kSection = "Tool_DefaultKeywords";

constexpr std::string_view kBuiltInKeys[]{"IESNA:LM-63-2002", "[TEST]",      "[TESTLAB]", "[ISSUEDATE]", "[MANUFAC]",
                                          "[LUMCAT]",         "[LUMINAIRE]", "[LAMPCAT]", "[LAMP]"};

constexpr char32_t kFirstSurrogate = 0xD800;
constexpr char32_t kSurrogates = 0x800;
constexpr char32_t kLastCodePoint = 0x10FFFF;

OneBased<KeywordRow> builtInBlock()
{
    OneBased<KeywordRow> rows;
    for (const std::string_view key : kBuiltInKeys)
        rows.append({std::string(key), {}});
    return rows;
}

template <typename Step>
void ignoringErrors(const Step &step)
{
    try {
        step();
    } catch (const RunTimeError &) {
    }
}

}  // namespace

std::string defaultsPrefix(int row)
{
    char32_t codePoint = 64 + static_cast<char32_t>(row);
    if (codePoint >= kFirstSurrogate)
        codePoint += kSurrogates;
    return codePoint > kLastCodePoint ? std::string() : codePointText(codePoint);
}

OneBased<KeywordRow> gsbKeyDefaultLoad(SettingsStore &store)
{
    OneBased<KeywordRow> loaded;
    for (const Setting &setting : store.readAll(kApplication, kSection))
        loaded.append({std::string(withoutFirstCodePoint(setting.name)), setting.data});
    return loaded.empty() ? builtInBlock() : loaded;
}

void gsbKeyDefaultSave(SettingsStore &store, const OneBased<KeywordRow> &rows)
{
    const auto writeRow = [&](int row) {
        const std::string prefix = defaultsPrefix(row);
        if (!prefix.empty())
            store.write(kApplication, kSection, prefix + rows(row).key, rows(row).value);
    };
    const auto writeAll = [&] {
        ignoringErrors([&] { store.removeSection(kApplication, kSection); });
        for (int row = 1; row <= rows.size(); ++row)
            ignoringErrors([&] { writeRow(row); });
    };
    // One transaction: nobody reads half a block, and a locked store is waited for once, not once for each row.
    ignoringErrors([&] { store.transact(writeAll); });
}

std::optional<std::vector<Setting>> storedDefaults(SettingsStore &store)
{
    std::optional<std::vector<Setting>> block;
    ignoringErrors([&] { block = store.readAll(kApplication, kSection); });
    return block;
}

void restoreDefaults(SettingsStore &store, const std::vector<Setting> &block)
{
    const auto writeAll = [&] {
        store.removeSection(kApplication, kSection);
        for (const Setting &setting : block)
            store.write(kApplication, kSection, setting.name, setting.data);
    };
    ignoringErrors([&] { store.transact(writeAll); });
}

}  // namespace penwright
