// A tool as a host meets it, without a window: it takes commands, notes them in a file, and does what it is told to.
//
// Environment: FAKE_TOOL_LOG, the file that gets the command line and every command, one a line; FAKE_TOOL, what it
// does at "START": "die", "silence" (does nothing, not even at "CLOSE"), "last words" (hands a
// record over and dies), "rubbish", "wait", or a word to post, with a record.
#include <sys/prctl.h>

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <fstream>
#include <thread>

#include "core/SplitCommandText.h"
#include "hostlink/RecordText.h"
#include "platform/sqlite/SqliteSettingsStore.h"

namespace {

using namespace penwright;
using namespace std::chrono_literals;

constexpr std::string_view kApplication = "Lumentor_PE";

class FakeTool {
public:
    explicit FakeTool(const std::string &commandLine)
        : m_store(SqliteSettingsStore::userPath()), m_log(std::getenv("FAKE_TOOL_LOG"), std::ios::app)
    {
        const SplitText split = SplitCommandText(commandLine);
        m_inbox = split.table(1, 3);
        m_tag = split.table(1, 4);
        m_section = split.table(1, 6);
        m_log << commandLine << std::endl;
    }

    void run(const std::string &behaviour)
    {
        while (true) {
            const std::string command = m_store.pop(kApplication, m_section, "PenwrightPE|" + m_tag);
            if (!command.empty())
                m_log << command << std::endl;
            if (command == "START")
                act(behaviour);
            if (command == "CLOSE" && behaviour != "silence")
                return post("CloseRemove,PenwrightPE," + m_tag);
            std::this_thread::sleep_for(5ms);
        }
    }

private:
    void act(const std::string &behaviour)
    {
        if (behaviour == "die")
            raise(SIGKILL);
        else if (behaviour == "last words")
            dieHandingOver();
        else if (behaviour == "rubbish")
            postRubbish();
        else if (behaviour == "RefreshData")
            refresh();
        else if (behaviour != "wait" && behaviour != "silence")
            postRecord(behaviour);
    }

    void postRubbish()
    {
        post(std::string("\x01\xff,\xfe\n\n,,", 8));
        post(std::string(1'000'000, ','));
        post("CLOSE");
    }

    void dieHandingOver()
    {
        storeRecord("/tmp/last words.ies");
        m_store.write(kApplication, m_section, m_inbox, "SendNewDataClose,PenwrightPE," + m_tag);
        raise(SIGKILL);
    }

    void postRecord(const std::string &word)
    {
        storeRecord(word.back() == '*' ? "new_file_1" : "/tmp/of tool " + m_tag + ".ies");
        post(word + ",PenwrightPE," + m_tag);
    }

    void storeRecord(const std::string &name)
    {
        PhotometricRecord record;
        record.Filename = name;
        record.Keywords = {"IESNA:LM-63-2002"};
        writeRecordTexts(record, [this](std::string_view field, const std::string &text) {
            m_store.write(kApplication, m_section, recordValueName(field, 1), text);
        });
    }

    void refresh()
    {
        post("RefreshData");
        m_log << "then Filename1 is " << m_store.read(kApplication, m_section, "Filename1") << std::endl;
    }

    void post(const std::string &text)
    {
        m_store.write(kApplication, m_section, m_inbox, text);
        while (m_store.peek(kApplication, m_section, m_inbox) != std::string())
            std::this_thread::sleep_for(2ms);
    }

    SqliteSettingsStore m_store;
    std::ofstream m_log;
    std::string m_inbox;
    std::string m_tag;
    std::string m_section;
};

}  // namespace

int main(int argc, char **argv)
{
    if (argc != 2)
        return 2;
    // A test that dies takes it along.
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    FakeTool(argv[1]).run(std::getenv("FAKE_TOOL"));
    return 0;
}
