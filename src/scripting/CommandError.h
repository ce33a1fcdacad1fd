// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <stdexcept>

/// Why a command was refused or failed, in words for the person.
class CommandError : public std::runtime_error {
public:
    enum class Cause {
        /// The command itself is wrong: the date is none of the calendar, or the state is none.
        InvalidDate,
        InvalidState,
        NothingToUndo,
        /// Checks are off, or wait for the first run.
        TrackingOff,
        /// There is no store, or it cannot be read.
        NoData,
        NotSaved,
        BackupFailed,
        /// The program does not answer, or uses the store where it cannot be reached.
        NoAnswer
    };

    CommandError(Cause cause, const QString& description)
        : std::runtime_error(description.toStdString())
        , m_cause(cause)
    {
    }

    [[nodiscard]] Cause cause() const { return m_cause; }
    [[nodiscard]] QString description() const { return QString::fromUtf8(what()); }
    [[nodiscard]] bool isMisuse() const { return m_cause == Cause::InvalidDate || m_cause == Cause::InvalidState; }

private:
    Cause m_cause;
};
