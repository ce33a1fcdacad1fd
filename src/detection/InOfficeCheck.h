// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

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

private:
    QCoro::Task<> run();
    QCoro::Task<bool> detectAndUpdate(bool markPreviousWorkday);
    void report(const char* failure);
    QCoro::Task<> sleep();
    QCoro::Task<bool> isSleepDone(std::chrono::seconds duration);

    CheckParts m_parts;
    bool m_lastSleepFailed = false;
};
