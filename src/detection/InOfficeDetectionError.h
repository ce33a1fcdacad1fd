// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCoreApplication>

#include <stdexcept>

/// Why a check failed.
class InOfficeDetectionError : public std::runtime_error {
    Q_DECLARE_TR_FUNCTIONS(InOfficeDetectionError)

public:
    enum Case { duplicateMonthModels, locationAccessDenied, couldNotFindDefaultInterface, wifiTurnedOff };

    explicit InOfficeDetectionError(Case code);

    [[nodiscard]] Case code() const { return m_code; }
    /// Translated.
    [[nodiscard]] QString description() const { return QString::fromUtf8(what()); }

private:
    [[nodiscard]] static QString descriptionOf(Case code);

    Case m_code;
};
