#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QStringList>

#include <memory>

#include "hostbench/HeldFiles.h"
#include "platform/qt/SideRun.h"

namespace penwright {

class TextFiles;

/// Opens IES files of the disk one after another without holding up the window. Files that are asked for meanwhile wait
/// behind the others.
class FileOpening : public QObject {
    Q_OBJECT

public:
    FileOpening(std::shared_ptr<TextFiles> files, QObject *parent);

    /// Opens files, in this order.
    void open(const QStringList &paths);

    /// Opens no more; what is opened stays, and what was wrong so far is told.
    void stop();

signals:
    /// A file takes longer than a moment; with how much of it is done, 0 to 1.
    void progressed(const QString &name, double part);

    void opened(penwright::HeldFile &file);

    /// A file is none, or cannot be read, and why.
    void refused(const QString &problem);

    /// All that were asked for are opened or refused, or it was stopped.
    void finished();

private:
    void openNext();
    void take(HeldFile *file, const QString &problem);

    std::shared_ptr<TextFiles> m_files;
    SideRun m_run;
    QStringList m_waiting;  ///< absolute paths; the first one is read now
    QElapsedTimer m_since;  ///< since none was being opened
};

}  // namespace penwright
