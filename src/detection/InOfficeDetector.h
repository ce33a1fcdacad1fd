// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

#include <QCoroTask>

class WiFiClient;

/// Finds out whether an office network is in range, by one scan per question.
class InOfficeDetector {
public:
    explicit InOfficeDetector(WiFiClient& client)
        : m_client(client)
    {
    }

    /// Whether any network in range has one of these names: the whole name, canonically equivalent by Unicode and
    /// otherwise exact. Throws an InOfficeDetectionError without a radio that is on, and the scan's own error when the
    /// scan fails.
    [[nodiscard]] QCoro::Task<bool> isInOffice(QStringList officeSsids);

private:
    WiFiClient& m_client;
};
