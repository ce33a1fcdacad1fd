// SPDX-License-Identifier: GPL-3.0-or-later
#include "InOfficeDetector.h"

#include "InOfficeDetectionError.h"
#include "Log.h"
#include "WiFiClient.h"

#include <QSet>

#include <algorithm>

namespace {

// Two texts are canonically equivalent if their decompositions are equal.
QString decomposed(const QString& text)
{
    return text.normalized(QString::NormalizationForm_D);
}

} // namespace

QCoro::Task<bool> InOfficeDetector::isInOffice(QStringList officeSsids)
{
    const auto interface = co_await m_client.readyInterface();
    if (!interface) {
        qCCritical(logDetection, "Could not find default interface for automatic in office detection");
        throw InOfficeDetectionError(InOfficeDetectionError::couldNotFindDefaultInterface);
    }
    if (!interface->powerOn)
        throw InOfficeDetectionError(InOfficeDetectionError::wifiTurnedOff);

    const QList<WiFiNetwork> networks = co_await m_client.scanForNetworks(interface->name);
    QSet<QString> wanted;
    for (const QString& ssid : officeSsids)
        wanted.insert(decomposed(ssid));
    const auto isOffice = [&](const WiFiNetwork& network) {
        return network.ssid && wanted.contains(decomposed(*network.ssid));
    };
    const auto found = std::find_if(networks.begin(), networks.end(), isOffice);
    m_network = found == networks.end() ? QString() : *found->ssid;
    qCDebug(logDetection) << "Networks found on" << interface->name << networks.size();
    if (found != networks.end())
        qCDebug(logDetection) << "Of the office:" << m_network;
    co_return found != networks.end();
}
