// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <QList>

/// Which backups to keep, by the times when they were made: the newest of each of the last seven days on which one was
/// made, of the last five weeks and of the last twelve months; also all of today, so that none goes while a person
/// works with it, and all whose time has not come yet, because a clock was set back.
[[nodiscard]] QList<QDateTime> keptBackups(QList<QDateTime> times, const QDateTime& now);
