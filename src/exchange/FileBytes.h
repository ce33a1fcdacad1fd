// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

/// Reads a file, without waiting for anybody. Of one that is larger than `maximumSize` it returns one byte more. Throws
/// a FileError if it cannot be read.
[[nodiscard]] QByteArray readFile(const QString& path, qint64 maximumSize);
