#include "hostbench/FileOpening.h"

#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <new>

#include "hostbench/DiskFiles.h"
#include "hostbench/OpenedFile.h"
#include "platform/RunTimeError.h"
#include "platform/TextFiles.h"

namespace penwright {

namespace {

/// What is quicker than this, in milliseconds, shows no progress.
constexpr qint64 kMoment = 500;

/// How much of the work is done when the bytes are there.
constexpr double kBytesPart = 0.1;

/// What came of a file: it, or why there is none.
struct Opening {
    std::optional<HeldFile> file;
    QString problem;
};

Opening failed(const QString &name, int error)
{
    return {{}, FileOpening::tr("%1 was not opened: %2.").arg(name, readingProblem(error))};
}

/// Runs on a thread of its own.
Opening openingOf(TextFiles &files, const QString &path, const SideRun::GoOn &goOn)
{
    const QString name = QFileInfo(path).fileName();
    try {
        const FileContent content = files.read(QFile::encodeName(path).toStdString(), kMostFileBytes,
                                               [&goOn](double part) { return goOn(kBytesPart * part); });
        if (content.error == ECANCELED)
            return {};
        if (content.error != 0)
            return failed(name, content.error);
        auto opened = openedFile(path.toStdString(), content.bytes,
                                 [&goOn](double part) { return goOn(kBytesPart + (1 - kBytesPart) * part); });
        if (const auto *problem = std::get_if<std::string>(&opened))
            return {{}, QString::fromStdString(*problem)};
        return {std::move(std::get<HeldFile>(opened)), {}};
    } catch (const std::bad_alloc &) {
        return failed(name, ENOMEM);
    } catch (const RunTimeError &error) {
        return {{}, FileOpening::tr("%1 was not opened: %2.").arg(name, QString::fromStdString(error.description()))};
    }
}

}  // namespace

FileOpening::FileOpening(std::shared_ptr<TextFiles> files, QObject *parent)
    : QObject(parent), m_files(std::move(files)), m_run(this)
{
    connect(&m_run, &SideRun::progressed, this, [this](double part) {
        if (m_since.hasExpired(kMoment))
            emit progressed(QFileInfo(m_waiting.first()).fileName(), part);
    });
}

void FileOpening::open(const QStringList &paths)
{
    for (const QString &path : paths)
        m_waiting.append(QFileInfo(path).absoluteFilePath());
    if (m_run.isRunning() || m_waiting.isEmpty())
        return;
    m_since.start();
    openNext();
}

void FileOpening::openNext()
{
    m_run.start([this, files = m_files, path = m_waiting.first()](const SideRun::GoOn &goOn) -> SideRun::Answer {
        const auto opening = std::make_shared<Opening>(openingOf(*files, path, goOn));
        return [this, opening] { take(opening->file ? &*opening->file : nullptr, opening->problem); };
    });
}

void FileOpening::take(HeldFile *file, const QString &problem)
{
    m_waiting.removeFirst();
    // Read while this one is shown.
    if (!m_waiting.isEmpty())
        openNext();
    if (file)
        emit opened(*file);
    else
        emit refused(problem);
    if (m_waiting.isEmpty())
        emit finished();
}

void FileOpening::stop()
{
    m_run.stop();
    m_waiting.clear();
    emit finished();
}

}  // namespace penwright
