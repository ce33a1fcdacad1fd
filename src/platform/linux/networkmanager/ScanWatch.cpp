// SPDX-License-Identifier: GPL-3.0-or-later
#include "ScanWatch.h"

#include "NetworkManagerNames.h"
#include "SignalAwaiter.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QTimer>

using namespace Qt::StringLiterals;

ScanWatch::ScanWatch(const QString& devicePath, QObject* parent)
    : QObject(parent)
{
    QDBusConnection::systemBus().connect(networkManagerService, devicePath, propertiesInterface, u"PropertiesChanged"_s,
                                         {wirelessInterface}, u"sa{sv}as"_s, this,
                                         SLOT(handlePropertiesChanged(QDBusMessage)));
}

QCoro::Task<> ScanWatch::wait(std::chrono::milliseconds longest)
{
    if (m_hasScanned)
        co_return;
    QTimer::singleShot(longest, this, &ScanWatch::ended);
    co_await nextSignal(this, &ScanWatch::ended);
}

void ScanWatch::handlePropertiesChanged(const QDBusMessage& signal)
{
    const auto changed = qdbus_cast<QVariantMap>(signal.arguments().value(1));
    if (!changed.contains(u"LastScan"_s))
        return;
    m_hasScanned = true;
    Q_EMIT ended();
}
