// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <stdexcept>

/// Why the automatic marking could not do its work.
class InOfficeDetectionError : public std::runtime_error {
public:
    enum Case { duplicateMonthModels, locationAccessDenied, couldNotFindDefaultInterface, wifiTurnedOff };

    explicit InOfficeDetectionError(Case code);

    [[nodiscard]] Case code() const { return m_code; }
    /// In the person's language.
    [[nodiscard]] QString description() const { return QString::fromUtf8(what()); }

private:
    Case m_code;
};
