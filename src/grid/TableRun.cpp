#include "grid/TableRun.h"

#include <QCoreApplication>
#include <QPointer>
#include <QTimer>

#include <atomic>
#include <cerrno>
#include <new>
#include <thread>
#include <utility>

#include "core/TextBytes.h"
#include "platform/TextFiles.h"

namespace penwright {
namespace {

using namespace std::chrono_literals;

constexpr auto kLook = 50ms;
constexpr std::size_t kShortText = 500'000;  // bytes, read in some hundredths of a second

}  // namespace

struct TableRun::Run {
    std::atomic<bool> isStopped = false;
    std::atomic<double> part = 0;
};

TableRun::TableRun(QObject *parent) : QObject(parent), m_look(new QTimer(this))
{
    m_look->setInterval(kLook);
    connect(m_look, &QTimer::timeout, this, [this] {
        if (m_run)
            emit progressed(m_run->part);
    });
}

TableRun::~TableRun()
{
    stop();
}

void TableRun::stop()
{
    m_look->stop();
    if (const auto run = std::exchange(m_run, nullptr))
        run->isStopped = true;
}

void TableRun::readFile(TextFiles &files, const std::string &path)
{
    start(false, [this, &files, path](const GoOn &goOn) -> std::function<void()> {
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
    start(text->size() <= kShortText, [this, text, reading](const GoOn &goOn) -> std::function<void()> {
        const auto table = std::make_shared<Table>(TableFault{"There is too little memory for this table.", 0, 0});
        try {
            *table = penwright::readTable(*text, reading, goOn);
        } catch (const std::bad_alloc &) {  // it is the fault that it was
        }
        return [this, table] { emit tableRead(*table); };
    });
}

void TableRun::start(bool isShort, std::function<std::function<void()>(const GoOn &)> work)
{
    stop();
    if (isShort)
        return work({})();
    const auto run = m_run = std::make_shared<Run>();
    m_look->start();
    const auto deliver = [alive = QPointer(this), run](std::function<void()> answer) {
        if (!alive || run->isStopped)
            return;
        alive->stop();
        answer();
    };
    std::thread([run, work = std::move(work), deliver] {
        const std::function<void()> answer = work([&run](double part) {
            run->part = part;
            return !run->isStopped;
        });
        if (auto *application = QCoreApplication::instance())
            QMetaObject::invokeMethod(
                application, [deliver, answer] { deliver(answer); }, Qt::QueuedConnection);
    }).detach();
}

}  // namespace penwright
