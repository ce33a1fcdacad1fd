// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

/// Reads a file, without waiting for anybody. Of one that is larger than `maximumSize` it returns one byte more. Throws
/// a FileError if it cannot be read.
[[nodiscard]] QByteArray readFile(const QString& path, qint64 maximumSize);

/// Writes a file whole: what was there before stays until then. Throws a FileError, and leaves nothing new, if that is
/// not possible.
void writeFile(const QString& path, const QByteArray& bytes);
