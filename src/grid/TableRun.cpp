#include "grid/TableRun.h"

#include <cerrno>
#include <new>

#include "core/TextBytes.h"
#include "platform/qt/SideRun.h"
#include "platform/TextFiles.h"

namespace penwright {
namespace {

constexpr std::size_t kShortText = 500'000;  // bytes, read in some hundredths of a second

}  // namespace

TableRun::TableRun(QObject *parent) : QObject(parent), m_run(new SideRun(this))
{
    connect(m_run, &SideRun::progressed, this, &TableRun::progressed);
}

void TableRun::stop()
{
    m_run->stop();
}

void TableRun::readFile(TextFiles &files, const std::string &path)
{
    m_run->start([this, &files, path](const SideRun::GoOn &goOn) -> SideRun::Answer {
        try {
            const FileContent content = files.read(path, kMostBytes, goOn);
            const auto text = std::make_shared<const std::string>(utf8Text(content.bytes));
            return [this, text, error = content.error] { emit fileRead(text, error); };
        } catch (const std::bad_alloc &) {
            return [this] { emit fileRead(nullptr, ENOMEM); };
        }
    });
}

void TableRun::readTable(const SharedText &text, const TableReading &reading)
{
    using Table = std::variant<TableContent, TableFault>;
    const SideRun::Work work = [this, text, reading](const SideRun::GoOn &goOn) -> SideRun::Answer {
        const auto table = std::make_shared<Table>(TableFault{"There is too little memory for this table.", 0, 0});
        try {
            *table = penwright::readTable(*text, reading, goOn);
        } catch (const std::bad_alloc &) {  // it is the fault that it was
        }
        return [this, table] { emit tableRead(table); };
    };
    if (text->size() > kShortText)
        return m_run->start(work);
    m_run->stop();
    work({})();
}

}  // namespace penwright
