// SPDX-License-Identifier: GPL-3.0-or-later
#include "WiFiMonitor.h"

#include "PlatformError.h"
#include "WiFiClient.h"

#include <QPointer>

#include <cstdio>

namespace {

void print(const std::string& line)
{
    std::puts(line.c_str());
    std::fflush(stdout);
}

bool isOn(const std::optional<WiFiInterface>& interface)
{
    return interface && interface->powerOn;
}

} // namespace

WiFiMonitor::WiFiMonitor(WiFiClient& client)
    : m_wifiClient(client)
{
    connect(&client, &WiFiClient::powerStateDidChange, this, &WiFiMonitor::readInterface);
    try {
        client.startMonitoringPowerEvents();
        m_isMonitoring = true;
    } catch (const PlatformError& error) {
        print(std::string("Could not monitor for Wi-Fi events: ") + error.what());
        return;
    }
    readDefaultInterface();
}

WiFiMonitor::~WiFiMonitor()
{
    if (!m_isMonitoring)
        return;
    try {
        m_wifiClient.stopMonitoringPowerEvents();
    } catch (const PlatformError&) {
        print("Could not stop wifiClient monitoring");
    }
}

QCoro::Task<> WiFiMonitor::readDefaultInterface()
{
    const QPointer self(this);
    const auto interface = co_await m_wifiClient.defaultInterface();
    if (self)
        isWiFiEnabled = isOn(interface);
}

QCoro::Task<> WiFiMonitor::readInterface(QString name)
{
    const QPointer self(this);
    const auto interface = co_await m_wifiClient.interfaceWithName(name);
    if (self)
        isWiFiEnabled = isOn(interface);
}
