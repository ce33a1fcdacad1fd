// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCoreApplication>

#include <stdexcept>

/// Why the store cannot be opened or read, in words for the person.
class StoreError : public std::runtime_error {
    Q_DECLARE_TR_FUNCTIONS(StoreError)

public:
    enum class Cause {
        Damage,
        /// Something else is in the way of data that may well be sound.
        Obstacle,
        /// Another program uses the store at the moment.
        Lock
    };

    explicit StoreError(const QString& description, Cause cause = Cause::Damage)
        : std::runtime_error(description.toStdString())
        , m_cause(cause)
    {
    }

    [[nodiscard]] QString description() const { return QString::fromUtf8(what()); }
    [[nodiscard]] Cause cause() const { return m_cause; }

private:
    Cause m_cause;
};
