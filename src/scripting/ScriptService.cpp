// SPDX-License-Identifier: GPL-3.0-or-later
#include "ScriptService.h"

#include "AppSettings.h"
#include "BackupService.h"
#include "Clock.h"
#include "CommandError.h"
#include "CountingRecords.h"
#include "DayMarker.h"
#include "PelloryInterface.h"

#include <utility>

ScriptService::ScriptService(const DayCommands::Parts& parts, BackupService& backups, std::function<void()> checkNow)
    : m_parts(parts)
    , m_days(parts)
    , m_backups(backups)
    , m_checkNow(std::move(checkNow))
{
}

ScriptService::~ScriptService()
{
    if (m_interface)
        m_interface->serve(nullptr);
}

void ScriptService::start(QObject& host)
{
    m_interface = host.findChild<PelloryInterface*>();
    if (!m_interface)
        m_interface = new PelloryInterface(host);
    m_interface->serve(this);
    connect(&m_parts.marker, &DayMarker::changed, this, &ScriptService::announceLater);
    connect(&m_parts.counting, &CountingRecords::changed, this, &ScriptService::announceLater);
    connect(&m_parts.clock, &Clock::dayChanged, this, &ScriptService::announceLater);
    m_choices.setBinding([this] {
        const AppSettings& settings = m_parts.settings;
        QStringList choices{QString::number(settings.vacationDaysCountAsInOffice),
                            QString::number(m_parts.weekStart())};
        for (const auto& goal : settings.daysPerWeekGoals.value())
            choices += {goal->wantedDaysPerWeek, goal->desc};
        return choices;
    });
    m_choicesFollower = m_choices.addNotifier([this] { announceLater(); });
}

void ScriptService::runCheck()
{
    if (!m_parts.settings.wifiTrackingEnabled || m_parts.settings.firstTime)
        throw CommandError(CommandError::Cause::TrackingOff,
                           tr("Automatic tracking is off, or set-up is not finished."));
    m_checkNow();
}

void ScriptService::backUp(const Ending& done, const Ending& failed)
{
    auto* waiting = new QObject(this);
    connect(&m_backups, &BackupService::made, waiting, [=](const BackupFile& backup) {
        waiting->deleteLater();
        done(backup.path);
    });
    connect(&m_backups, &BackupService::failed, waiting, [=](const QString& reason) {
        waiting->deleteLater();
        failed(reason);
    });
    m_backups.makeNow();
}

// At the end of the turn, when all of it has changed, and once for all of it.
void ScriptService::announceLater()
{
    if (std::exchange(m_isAnnouncing, true))
        return;
    const auto announce = [this] {
        m_isAnnouncing = false;
        Q_EMIT m_interface->Changed();
    };
    QMetaObject::invokeMethod(this, announce, Qt::QueuedConnection);
}
