// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "CheckOutcome.h"

#include <QDateTime>
#include <QObject>
#include <QProperty>

#include <QCoroTask>

#include <chrono>
#include <utility>

class AppSettings;
class Clock;
class CountingRecords;
class DayMarker;
class ModelContainer;
class Notifier;
class WiFiClient;

/// What a check needs.
struct CheckParts {
    ModelContainer& container;
    DayMarker& marker;
    const CountingRecords& counting;
    AppSettings& settings;
    WiFiClient& wifiClient;
    Notifier& notifier;
    Clock& clock;
};

/// The interval of the settings, in seconds. One that overflows 64 bits stops the program.
[[nodiscard]] std::chrono::seconds checkInterval(const AppSettings& settings);

/// Checks whether the person is at the office and marks the day, periodically and on request.
class InOfficeCheck : public QObject {
    Q_OBJECT

public:
    explicit InOfficeCheck(CheckParts parts)
        : m_parts(parts)
    {
    }

    /// Starts the periodic checks: one now, then one after each interval, which is read from the settings every time.
    /// They end when the clock or the Wi-Fi client is destroyed. Must be called only once.
    void start() { run(); }

    /// Runs one check and returns whether it marked today as in the office. A failure is logged and reported to
    /// the person; only Abandoned is thrown.
    QCoro::Task<bool> check(bool markPreviousWorkday);

    /// Starts a check that a person has asked for, who is told what comes of it.
    void checkNow() { checkOnce(true, true); }
    /// Starts the first check, when the first run is completed. A person who asked for one before that is told what
    /// comes of it.
    void checkAfterSetUp() { checkOnce(false, std::exchange(m_isPostponed, false)); }

    /// When a check last looked for networks, what came of it, and when the next periodic one is due. Invalid and None
    /// if there is none; skipped checks do not count.
    QProperty<QDateTime> lastCheck;
    QProperty<CheckOutcome> lastOutcome;
    QProperty<QDateTime> nextCheck;

Q_SIGNALS:
    /// A person has asked for a check, which waits until the first run is completed.
    void postponed();

private:
    QCoro::Task<> run();
    QCoro::Task<> checkOnce(bool markPreviousWorkday, bool isAskedFor);
    void answer(const CheckOutcome& outcome);
    QCoro::Task<CheckOutcome> checkIfSetUp(bool markPreviousWorkday);
    QCoro::Task<CheckOutcome> detectAndUpdate(bool markPreviousWorkday);
    QCoro::Task<CheckOutcome::Kind> detectAndMark(bool markPreviousWorkday);
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
    /// A person waits for the first check.
    bool m_isPostponed = false;
};
