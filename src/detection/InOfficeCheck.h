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

/// What a check needs.
struct CheckParts {
    ModelContainer& container;
    AppSettings& settings;
    WiFiClient& wifiClient;
    Notifier& notifier;
    Clock& clock;
};

/// The interval of the settings, in seconds. One that overflows 64 bits stops the program.
[[nodiscard]] std::chrono::seconds checkInterval(const AppSettings& settings);

/// Checks whether the person is at the office and marks the day, periodically and on request.
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

    /// Starts the periodic checks: one now, then one after each interval, which is read from the settings every time.
    /// They end when the clock or the Wi-Fi client is destroyed. Must be called only once.
    void start() { run(); }

    /// Runs one check and returns whether it marked today as in the office. A failure is logged, and reported to the
    /// person once a day; only Abandoned is thrown.
    QCoro::Task<bool> check(bool markPreviousWorkday);

    /// Starts one check without waiting for its result.
    void checkNow(bool markPreviousWorkday) { checkOnce(markPreviousWorkday); }

    /// When a check last looked for networks, and when the next periodic one is due. Invalid if there is none; skipped
    /// checks do not count.
    QProperty<QDateTime> lastCheck;
    QProperty<QDateTime> nextCheck;

private:
    QCoro::Task<> run();
    QCoro::Task<> checkOnce(bool markPreviousWorkday);
    QCoro::Task<bool> detectAndUpdate(bool markPreviousWorkday);
    void logProblem(const QString& problem);
    /// Replaces what was said before.
    void notifyOf(const QString& problem);
    void withdrawReport();
    QCoro::Task<> sleepUntilNextCheck();
    QCoro::Task<bool> trySleep(std::chrono::seconds duration);

    CheckParts m_parts;
    bool m_lastSleepFailed = false;
    bool m_hasReportedMissingService = false;
    /// The notification may still be on screen.
    bool m_isProblemShown = false;
};
