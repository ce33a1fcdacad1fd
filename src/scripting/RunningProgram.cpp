// SPDX-License-Identifier: GPL-3.0-or-later
#include "RunningProgram.h"

#include "BusNames.h"

#include <QDBusArgument>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDeadlineTimer>

#include <algorithm>
#include <thread>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

// In milliseconds. What reads or copies all days may take longer.
constexpr int usualTimeout = 5'000;
constexpr int longTimeout = 60'000;

// Structures arrive in the form in which they travel.
QVariant unpacked(const QVariant& value)
{
    if (value.metaType() != QMetaType::fromType<QDBusArgument>())
        return value;
    const auto argument = value.value<QDBusArgument>();
    if (argument.currentType() == QDBusArgument::MapType) {
        QVariantMap map;
        argument >> map;
        for (QVariant& entry : map)
            entry = unpacked(entry);
        return map;
    }
    QVariantList list;
    argument >> list;
    for (QVariant& entry : list)
        entry = unpacked(entry);
    return list;
}

// The name comes first, and what is behind it once there is something to see.
bool isStarting(const QDBusMessage& reply)
{
    const QStringList missing{u"org.freedesktop.DBus.Error.UnknownInterface"_s,
                              u"org.freedesktop.DBus.Error.UnknownMethod"_s,
                              u"org.freedesktop.DBus.Error.UnknownObject"_s};
    return missing.contains(reply.errorName());
}

CommandError::Cause causeOf(const QDBusMessage& reply)
{
    const auto name = reply.errorName();
    const auto* const found =
        std::ranges::find_if(bus_names::errors, [&](const auto& error) { return error.second == name; });
    return found == bus_names::errors.end() ? CommandError::Cause::NoAnswer : found->first;
}

} // namespace

RunningProgram::RunningProgram(QDBusConnection bus, std::chrono::milliseconds startTimeout)
    : m_bus(std::move(bus))
    , m_startTimeout(startTimeout)
{
    qDBusRegisterMetaType<WrittenMarks>();
}

bool RunningProgram::isThere(const QDBusConnection& bus)
{
    return bus.isConnected() && bus.interface()->isServiceRegistered(bus_names::service);
}

QVariantMap RunningProgram::status()
{
    const QVariant status = call(u"GetStatus"_s, {}, usualTimeout).arguments().value(0);
    return unpacked(status).toMap();
}

void RunningProgram::mark(const WrittenMarks& marks)
{
    call(u"MarkDays"_s, {QVariant::fromValue(marks)}, usualTimeout);
}

void RunningProgram::undo()
{
    call(u"Undo"_s, {}, usualTimeout);
}

QByteArray RunningProgram::csv()
{
    return call(u"Export"_s, {}, longTimeout).arguments().value(0).toString().toUtf8();
}

QString RunningProgram::backUp()
{
    return call(u"Backup"_s, {}, longTimeout).arguments().value(0).toString();
}

void RunningProgram::activate()
{
    auto message = QDBusMessage::createMethodCall(bus_names::service, bus_names::path, u"org.freedesktop.Application"_s,
                                                  u"Activate"_s);
    message << QVariantMap();
    message.setAutoStartService(false);
    m_bus.call(message, QDBus::NoBlock);
}

QDBusMessage RunningProgram::call(const QString& method, const QVariantList& arguments, int timeout)
{
    auto message = QDBusMessage::createMethodCall(bus_names::service, bus_names::path, bus_names::attendance, method);
    message.setArguments(arguments);
    message.setAutoStartService(false);
    const QDeadlineTimer end(m_startTimeout);
    for (;;) {
        const QDBusMessage reply = m_bus.call(message, QDBus::Block, timeout);
        if (reply.type() == QDBusMessage::ReplyMessage)
            return reply;
        if (isStarting(reply) && !end.hasExpired()) {
            std::this_thread::sleep_for(20ms);
            continue;
        }
        const auto cause = causeOf(reply);
        throw CommandError(cause, cause == CommandError::Cause::NoAnswer
                                      ? tr("Pellory is running, but does not answer: %1").arg(reply.errorMessage())
                                      : reply.errorMessage());
    }
}
