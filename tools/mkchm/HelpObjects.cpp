#include "mkchm/HelpObjects.h"

#include "mkchm/ChmFormat.h"
#include "mkchm/LittleEndian.h"

namespace penwright::mkchm {
namespace {

enum SystemCode { kContentsFile = 0, kDefaultTopic = 2, kTitle = 3, kLanguageRecord = 4 };

void appendRecord(std::string &out, SystemCode code, const std::string &data)
{
    append16(out, code);
    append16(out, data.size());
    out += data;
}

std::string zeroEnded(const std::string &text)
{
    return text + '\0';
}

std::string languageRecord()
{
    constexpr std::size_t kRecordSize = 36;
    std::string data;
    append32(data, kLanguage);
    data.resize(kRecordSize);  // no index of whole texts, no time
    return data;
}

std::string systemRecords(const HelpProject &project)
{
    std::string bytes;
    append32(bytes, 3);  // version
    appendRecord(bytes, kLanguageRecord, languageRecord());
    appendRecord(bytes, kDefaultTopic, zeroEnded(project.defaultTopic));
    appendRecord(bytes, kTitle, zeroEnded(project.title));
    appendRecord(bytes, kContentsFile, zeroEnded(project.contentsFile));
    return bytes;
}

}  // namespace

std::vector<ChmObject> systemObjects(const HelpProject &project)
{
    std::string strings(1, '\0');
    std::map<std::string, std::size_t> places;
    std::string pairs;
    for (const auto &[id, topic] : project.topics) {
        const auto [place, isNew] = places.insert({topic, strings.size()});
        if (isNew)
            strings += zeroEnded(topic);
        append32(pairs, id);
        append32(pairs, place->second);
    }
    std::string ivb;
    append32(ivb, pairs.size());
    return {{"/#SYSTEM", systemRecords(project)}, {"/#IVB", ivb + pairs}, {"/#STRINGS", strings}};
}

std::string compile(const HelpProject &project, const std::function<std::string(const std::string &)> &read)
{
    std::vector<ChmObject> objects = systemObjects(project);
    for (const std::string &file : project.files)
        objects.push_back({"/" + file, read(file)});
    return makeContainer(std::move(objects));
}

}  // namespace penwright::mkchm
