// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCoreApplication>
#include <QDateTime>
#include <QProperty>

#include <QCoroTask>

#include <chrono>

class AppSettings;
class Clock;
class ModelContainer;
class Notifier;
class WiFiClient;

/// What a check works with.
struct CheckParts {
    ModelContainer& container;
    AppSettings& settings;
    WiFiClient& wifiClient;
    Notifier& notifier;
    Clock& clock;
};

/// The product of minutes and 60. One that is no 64-bit number stops the program.
[[nodiscard]] std::chrono::seconds checkInterval(const AppSettings& settings);

/// Finds out whether the person is at the office and writes it down: once when asked, and by itself again and again.
class InOfficeCheck {
    Q_DECLARE_TR_FUNCTIONS(InOfficeCheck)

public:
    explicit InOfficeCheck(CheckParts parts)
        : m_parts(parts)
    {
    }
    InOfficeCheck(const InOfficeCheck&) = delete;
    InOfficeCheck& operator=(const InOfficeCheck&) = delete;
    ~InOfficeCheck() = default;

    /// Begins to check: now, and then after each interval of the settings, which is read anew every time. Goes on until
    /// the clock or the Wi-Fi client is destroyed. To be called once.
    void start() { run(); }

    /// One check. True when it has marked today as in the office. A failure is logged and told to the person; only
    /// Abandoned is thrown.
    QCoro::Task<bool> check(bool markPreviousWorkday);

    /// Begins one check, for which nobody waits.
    void checkNow(bool markPreviousWorkday) { checkOnce(markPreviousWorkday); }

    /// When the last check looked for networks that was not skipped, and when the next one is due by itself. Invalid
    /// where there is none.
    QProperty<QDateTime> lastCheck;
    QProperty<QDateTime> nextCheck;

private:
    QCoro::Task<> run();
    QCoro::Task<> checkOnce(bool markPreviousWorkday);
    QCoro::Task<bool> detectAndUpdate(bool markPreviousWorkday);
    void report(const char* failure);
    QCoro::Task<> sleep();
    QCoro::Task<bool> isSleepDone(std::chrono::seconds duration);

    CheckParts m_parts;
    bool m_lastSleepFailed = false;
};
