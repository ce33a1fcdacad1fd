// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "CommandTarget.h"

#include <QDBusConnection>

#include <chrono>

class QDBusMessage;

/// The program that runs in this session, over the session bus.
class RunningProgram : public CommandTarget {
    Q_DECLARE_TR_FUNCTIONS(RunningProgram)

public:
    /// A program that is starting is waited for as long as `startTimeout`.
    explicit RunningProgram(QDBusConnection bus, std::chrono::milliseconds startTimeout = std::chrono::seconds(5));

    /// Whether there is one. False without a bus.
    [[nodiscard]] static bool isThere(const QDBusConnection& bus);

    [[nodiscard]] QVariantMap status() override;
    void mark(const WrittenMarks& marks) override;
    void undo() override;
    [[nodiscard]] QByteArray csv() override;
    [[nodiscard]] QString backUp() override;
    /// Opens its window at today.
    void activate();

private:
    QDBusMessage call(const QString& method, const QVariantList& arguments, int timeout);

    QDBusConnection m_bus;
    std::chrono::milliseconds m_startTimeout;
};
