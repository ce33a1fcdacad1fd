// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

#include <QCoroTask>

class WiFiClient;

/// Finds out whether an office network is in range.
class InOfficeDetector {
public:
    explicit InOfficeDetector(WiFiClient& client)
        : m_client(client)
    {
    }

    /// Scans once and returns whether any network in range has one of these names. Names match if they are canonically
    /// equivalent in Unicode. Throws an InOfficeDetectionError if there is no radio or it is off, and a PlatformError
    /// if the scan fails.
    [[nodiscard]] QCoro::Task<bool> isInOffice(QStringList officeSsids);

    /// The network that it found; empty if it found none.
    [[nodiscard]] QString network() const { return m_network; }

private:
    WiFiClient& m_client;
    QString m_network;
};
