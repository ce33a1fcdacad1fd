// SPDX-License-Identifier: GPL-3.0-or-later
#include "InOfficeDetectionError.h"

#include <QCoreApplication>

namespace {

QString descriptionOf(InOfficeDetectionError::Case code)
{
    const auto translated = [](const char* text) {
        return QCoreApplication::translate("InOfficeDetectionError", text);
    };
    switch (code) {
    case InOfficeDetectionError::duplicateMonthModels:
        return translated("There is a problem with the database.");
    case InOfficeDetectionError::locationAccessDenied:
        return translated("The app does not have location access.");
    case InOfficeDetectionError::couldNotFindDefaultInterface:
        return translated("Could not find the default Wi-Fi interface.");
    case InOfficeDetectionError::wifiTurnedOff:
        return translated("Wi-Fi is turned off.");
    }
    Q_UNREACHABLE();
}

} // namespace

InOfficeDetectionError::InOfficeDetectionError(Case code)
    : std::runtime_error(descriptionOf(code).toStdString())
    , m_code(code)
{
}
