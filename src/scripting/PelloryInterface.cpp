// SPDX-License-Identifier: GPL-3.0-or-later
#include "PelloryInterface.h"

#include "BusNames.h"
#include "ScriptService.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusMetaType>

#include <algorithm>

namespace {

void sendError(const QDBusMessage& call, const CommandError& error)
{
    const auto* const found =
        std::ranges::find(bus_names::errors, error.cause(), [](const auto& e) { return e.first; });
    call.setDelayedReply(true);
    QDBusConnection::sessionBus().send(call.createErrorReply(found->second, error.description()));
}

} // namespace

PelloryInterface::PelloryInterface(QObject& host)
    : QDBusAbstractAdaptor(&host)
{
    qDBusRegisterMetaType<WrittenMarks>();
}

template <class Action>
std::invoke_result_t<Action, ScriptService&> PelloryInterface::answer(const QDBusMessage& call, Action action)
{
    try {
        if (m_service == nullptr)
            throw CommandError(CommandError::Cause::NoAnswer, DayCommands::tr("Pellory is starting."));
        return action(*m_service);
    } catch (const CommandError& error) {
        sendError(call, error);
    }
    return std::invoke_result_t<Action, ScriptService&>();
}

QVariantMap PelloryInterface::GetStatus(const QDBusMessage& call)
{
    return answer(call, [](ScriptService& service) { return service.days().status(); });
}

void PelloryInterface::Mark(const QString& date, const QString& state, const QDBusMessage& call)
{
    MarkDays({{date, state}}, call);
}

void PelloryInterface::MarkDays(const QMap<QString, QString>& states, const QDBusMessage& call)
{
    answer(call, [&](ScriptService& service) { service.days().mark(states); });
}

void PelloryInterface::Undo(const QDBusMessage& call)
{
    answer(call, [](ScriptService& service) { service.days().undo(); });
}

void PelloryInterface::RunCheck(const QDBusMessage& call)
{
    answer(call, [](ScriptService& service) { service.runCheck(); });
}

QString PelloryInterface::Export(const QDBusMessage& call)
{
    return answer(call, [](ScriptService& service) { return QString::fromUtf8(service.days().csv()); });
}

QString PelloryInterface::Backup(const QDBusMessage& call)
{
    call.setDelayedReply(true);
    const auto done = [call](const QString& path) { QDBusConnection::sessionBus().send(call.createReply(path)); };
    const auto failed = [call](const QString& reason) {
        sendError(call, CommandError(CommandError::Cause::BackupFailed, reason));
    };
    answer(call, [&](ScriptService& service) { service.backUp(done, failed); });
    return {};
}
