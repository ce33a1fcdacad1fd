// SPDX-License-Identifier: GPL-3.0-or-later
#include "LaunchAtLogin.h"

#include "PlatformError.h"

#include <QLoggingCategory>

namespace {

Q_LOGGING_CATEGORY(logLogin, "pellory.login", QtInfoMsg)

} // namespace

void LaunchAtLogin::setEnabled(bool isEnabled)
{
    Q_EMIT willChange();
    try {
        isEnabled ? m_item.registerItem() : m_item.unregisterItem();
    } catch (const PlatformError& error) {
        qCCritical(logLogin, "Failed to %s launch at login: %s", isEnabled ? "enable" : "disable", error.what());
    }
}
