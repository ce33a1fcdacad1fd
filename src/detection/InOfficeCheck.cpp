// SPDX-License-Identifier: GPL-3.0-or-later
#include "InOfficeCheck.h"

#include "AppSettings.h"
#include "Clock.h"
#include "Delay.h"
#include "InOfficeDetector.h"
#include "InOfficeModelUpdater.h"
#include "Log.h"
#include "Notifier.h"
#include "SignalAwaiter.h"
#include "WiFiClient.h"

#include <algorithm>
#include <limits>
#include <utility>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto problemTopic = "detection-problem"_L1;
constexpr std::chrono::seconds shortestSleep = 1min;
constexpr std::chrono::seconds longestTimer =
    std::chrono::floor<std::chrono::seconds>(std::chrono::milliseconds(std::numeric_limits<int>::max()));

} // namespace

std::chrono::seconds checkInterval(const AppSettings& settings)
{
    qint64 seconds = 0;
    if (qMulOverflow<qint64>(settings.checkEveryInMinutes, 60, &seconds))
        qFatal("An interval of %lld minutes cannot be counted in seconds", settings.checkEveryInMinutes.value());
    return std::chrono::seconds(seconds);
}

QCoro::Task<> InOfficeCheck::run()
{
    try {
        co_await check(true);
        for (;;) {
            co_await sleepUntilNextCheck();
            co_await check(true);
        }
    } catch (const Abandoned&) {
        // The program is ending.
    }
}

QCoro::Task<> InOfficeCheck::checkOnce(bool markPreviousWorkday)
{
    try {
        co_await check(markPreviousWorkday);
    } catch (const Abandoned&) {
        // The program is ending.
    }
}

QCoro::Task<bool> InOfficeCheck::check(bool markPreviousWorkday)
{
    try {
        const bool isMarked = co_await detectAndUpdate(markPreviousWorkday);
        co_return isMarked;
    } catch (const Abandoned&) {
        throw;
    } catch (const WiFiServiceMissing& error) {
        // This lasts as long as the system is as it is, so that it is said once.
        logProblem(error.description());
        if (!std::exchange(m_hasReportedMissingService, true))
            notifyOf(error.description());
    } catch (const std::exception& error) {
        logProblem(QString::fromUtf8(error.what()));
        notifyOf(QString::fromUtf8(error.what()));
    }
    co_return false;
}

QCoro::Task<bool> InOfficeCheck::detectAndUpdate(bool markPreviousWorkday)
{
    qCInfo(logDetection, "Checking if in office via Wi-Fi");
    const AppSettings& settings = m_parts.settings;
    if (!settings.wifiTrackingEnabled) {
        qCDebug(logDetection, "Skipping in office wifi checking, not enabled");
        co_return false;
    }
    if (settings.firstTime) {
        qCDebug(logDetection, "Skipping in office wifi checking, inside app first time setup");
        co_return false;
    }
    lastCheck = m_parts.clock.now();
    InOfficeDetector detector(m_parts.wifiClient);
    const bool inOfficeNow = co_await detector.isInOffice(settings.inOfficeSsids);
    qCDebug(logDetection, "In office now: %s", inOfficeNow ? "yes" : "no");
    InOfficeModelUpdater updater(m_parts.container, m_parts.clock, m_parts.notifier);
    const bool isMarked = updater.update(settings.notificationsEnabled, inOfficeNow, markPreviousWorkday);
    withdrawReport();
    co_return isMarked;
}

void InOfficeCheck::logProblem(const QString& problem)
{
    qCCritical(logDetection, "Error while checking if in office via Wi-Fi: %s", qUtf8Printable(problem));
}

void InOfficeCheck::notifyOf(const QString& problem)
{
    m_isProblemShown = true;
    m_parts.notifier.post(
        {tr("Pellory"),
         tr("There was a problem using to Wi-Fi to detect if you're in the office or not.\n\n%1").arg(problem),
         problemTopic});
}

void InOfficeCheck::withdrawReport()
{
    if (std::exchange(m_isProblemShown, false))
        m_parts.notifier.withdraw(problemTopic);
}

QCoro::Task<> InOfficeCheck::sleepUntilNextCheck()
{
    const std::chrono::seconds duration = std::max(checkInterval(m_parts.settings), shortestSleep);
    qCDebug(logDetection, "Sleeping for %lld seconds", qint64(duration.count()));
    nextCheck = m_parts.clock.now().addDuration(duration);
    const bool failedBefore = m_lastSleepFailed;
    const bool hasSlept = co_await trySleep(duration);
    m_lastSleepFailed = !hasSlept;
    if (failedBefore && m_lastSleepFailed) {
        // A failed sleep is followed by a check at once. If it fails again and again, that must not be a busy loop.
        co_await delay(std::min(duration, longestTimer), &m_parts.clock);
    }
}

QCoro::Task<bool> InOfficeCheck::trySleep(std::chrono::seconds duration)
{
    try {
        co_await m_parts.clock.sleep(duration);
        co_return true;
    } catch (const Abandoned&) {
        throw;
    } catch (const std::exception& error) {
        qCCritical(logDetection, "Could not sleep: %s", error.what());
    }
    co_return false;
}
