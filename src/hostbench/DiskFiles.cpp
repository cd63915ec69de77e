#include "hostbench/DiskFiles.h"

#include <QFile>
#include <QFileInfo>
#include <QObject>
#include <QSaveFile>

#include "core/IesText.h"
#include "platform/RunTimeError.h"

namespace penwright {

namespace {

constexpr qint64 kMostBytes = 100'000'000;

}  // namespace

DiskFile readDiskFile(const QString &path)
{
    const QFileInfo info(path);
    if (!info.exists())
        return {{}, QObject::tr("There is no such file")};
    if (!info.isFile())
        return {{}, QObject::tr("This is no file that can be read")};
    if (info.size() > kMostBytes)
        return {{}, QObject::tr("The file is larger than 100 MB")};
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {{}, file.errorString()};
    // One byte more than allowed shows that it grows meanwhile, without reading on for ever.
    QByteArray bytes = file.read(kMostBytes + 1);
    if (file.error() != QFileDevice::NoError)
        return {{}, file.errorString()};
    if (bytes.size() > kMostBytes)
        return {{}, QObject::tr("The file is larger than 100 MB")};
    return {bytes, {}};
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
