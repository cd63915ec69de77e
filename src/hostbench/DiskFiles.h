#pragma once

#include <QString>

#include "core/PhotometricRecord.h"

namespace penwright {

/// The largest file that is opened, in bytes.
inline constexpr std::size_t kMostFileBytes = 100'000'000;

/// Why a file of the disk could not be read, by its errno; without a full stop.
QString readingProblem(int error);

/// Writes a record's file whole or not at all; "" or why not.
QString writeDiskFile(const QString &path, const PhotometricRecord &record);

}  // namespace penwright
