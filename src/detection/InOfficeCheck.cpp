// SPDX-License-Identifier: GPL-3.0-or-later
#include "InOfficeCheck.h"

#include "AppSettings.h"
#include "Clock.h"
#include "DayMarker.h"
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
constexpr auto answerTopic = "check-answer"_L1;
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

QCoro::Task<> InOfficeCheck::checkOnce(bool markPreviousWorkday, bool isAskedFor)
{
    // A person who asks is told again.
    if (isAskedFor)
        m_hasReportedMissingService = false;
    try {
        const CheckOutcome outcome = co_await checkIfSetUp(markPreviousWorkday);
        if (isAskedFor)
            answer(outcome);
    } catch (const Abandoned&) {
        // The program is ending.
    }
}

void InOfficeCheck::answer(const CheckOutcome& outcome)
{
    if (outcome.kind == CheckOutcome::NotSetUp) {
        m_isPostponed = true;
        Q_EMIT postponed();
        return;
    }
    // These two have a notification of their own.
    const bool isNews = outcome.kind != CheckOutcome::Marked && outcome.kind != CheckOutcome::Failed;
    if (isNews && m_parts.settings.notificationsEnabled)
        m_parts.notifier.post({tr("Pellory"), outcome.text(), answerTopic});
}

QCoro::Task<bool> InOfficeCheck::check(bool markPreviousWorkday)
{
    const CheckOutcome outcome = co_await checkIfSetUp(markPreviousWorkday);
    co_return outcome.kind == CheckOutcome::Marked;
}

QCoro::Task<CheckOutcome> InOfficeCheck::checkIfSetUp(bool markPreviousWorkday)
{
    qCInfo(logDetection, "Checking if in office via Wi-Fi");
    const AppSettings& settings = m_parts.settings;
    if (!settings.wifiTrackingEnabled) {
        qCDebug(logDetection, "Skipping in office wifi checking, not enabled");
        co_return CheckOutcome{settings.firstTime ? CheckOutcome::NotSetUp : CheckOutcome::TrackingOff};
    }
    if (settings.firstTime) {
        qCDebug(logDetection, "Skipping in office wifi checking, inside app first time setup");
        co_return CheckOutcome{CheckOutcome::NotSetUp};
    }
    lastCheck = m_parts.clock.now();
    lastOutcome = CheckOutcome{CheckOutcome::Running};
    const CheckOutcome outcome = co_await detectAndUpdate(markPreviousWorkday);
    lastOutcome = outcome;
    co_return outcome;
}

QCoro::Task<CheckOutcome> InOfficeCheck::detectAndUpdate(bool markPreviousWorkday)
{
    QString problem;
    try {
        const CheckOutcome::Kind kind = co_await detectAndMark(markPreviousWorkday);
        withdrawReport();
        co_return CheckOutcome{kind};
    } catch (const Abandoned&) {
        throw;
    } catch (const WiFiServiceMissing& error) {
        problem = error.description();
        logProblem(problem);
        // This lasts as long as the system is as it is, so that it is said once.
        if (!std::exchange(m_hasReportedMissingService, true))
            notifyOf(problem);
    } catch (const std::exception& error) {
        problem = QString::fromUtf8(error.what());
        logProblem(problem);
        notifyOf(problem);
    }
    co_return CheckOutcome{CheckOutcome::Failed, problem};
}

QCoro::Task<CheckOutcome::Kind> InOfficeCheck::detectAndMark(bool markPreviousWorkday)
{
    const AppSettings& settings = m_parts.settings;
    InOfficeDetector detector(m_parts.wifiClient);
    const bool inOfficeNow = co_await detector.isInOffice(settings.inOfficeSsids);
    qCDebug(logDetection, "In office now: %s", inOfficeNow ? "yes" : "no");
    InOfficeModelUpdater updater(m_parts.container, m_parts.marker, m_parts.counting, m_parts.clock, m_parts.notifier);
    if (updater.update(settings.notificationsEnabled, inOfficeNow, markPreviousWorkday, detector.network()))
        co_return CheckOutcome::Marked;
    if (!inOfficeNow)
        co_return settings.inOfficeSsids.value().isEmpty() ? CheckOutcome::NoNetworkSet : CheckOutcome::NotInRange;
    const bool isTakenBack = m_parts.marker.isTakenBack(m_parts.clock.today(), DayState::IN_OFFICE);
    co_return isTakenBack ? CheckOutcome::TakenBack : CheckOutcome::MarkedBefore;
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
