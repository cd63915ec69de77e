#include "hostbench/DiskFiles.h"

#include <QObject>
#include <QSaveFile>

#include <cerrno>

#include "core/IesText.h"
#include "platform/RunTimeError.h"

namespace penwright {

QString readingProblem(int error)
{
    switch (error) {
        case ENOENT:
        case ENOTDIR:
            return QObject::tr("There is no such file");
        case EISDIR:
        case ENODEV:
            return QObject::tr("This is no file that can be read");
        case EFBIG:
            return QObject::tr("The file is larger than 100 MB");
        case ESTALE:
            return QObject::tr("The file was changed while it was read");
        case ENOMEM:
            return QObject::tr("There is too little memory for it");
        default:
            return qt_error_string(error);
    }
}

QString writeDiskFile(const QString &path, const PhotometricRecord &record)
{
    try {
        const QByteArray text = QByteArray::fromStdString(iesFileText(record));
        QSaveFile file(path);
        const bool isWritten = file.open(QIODevice::WriteOnly) && file.write(text) >= 0 && file.commit();
        return isWritten ? QString() : file.errorString();
    } catch (const RunTimeError &error) {
        return QString::fromStdString(error.description());
    }
}

}  // namespace penwright
