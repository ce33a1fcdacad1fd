// SPDX-License-Identifier: GPL-3.0-or-later
#include "InOfficeDetectionError.h"

QString InOfficeDetectionError::descriptionOf(Case code)
{
    switch (code) {
    case duplicateMonthModels:
        return tr("There is a problem with the database.");
    case locationAccessDenied:
        return tr("The app does not have location access.");
    case couldNotFindDefaultInterface:
        return tr("Could not find the default Wi-Fi interface.");
    case wifiTurnedOff:
        return tr("Wi-Fi is turned off.");
    }
    Q_UNREACHABLE();
}

InOfficeDetectionError::InOfficeDetectionError(Case code)
    : std::runtime_error(descriptionOf(code).toStdString())
    , m_code(code)
{
}
