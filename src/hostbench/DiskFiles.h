#pragma once

#include <QByteArray>
#include <QString>

#include "core/PhotometricRecord.h"

namespace penwright {

/// What a file holds, or why it could not be read.
struct DiskFile {
    QByteArray bytes;
    QString problem;  ///< "" when it was read
};

/// Reads a plain file of at most 100 MB; anything else, as a folder or a pipe, is refused before it can block.
DiskFile readDiskFile(const QString &path);

/// Writes a record's file whole or not at all; "" or why not.
QString writeDiskFile(const QString &path, const PhotometricRecord &record);

}  // namespace penwright
