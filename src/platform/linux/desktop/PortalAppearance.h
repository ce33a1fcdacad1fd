// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Appearance.h"

class QDBusMessage;
class QDBusPendingCallWatcher;

/// The colour scheme as the desktop portal tells it (org.freedesktop.appearance, color-scheme: 1 is dark, 2 is light, 0
/// is no preference, which is what GNOME says for light).
class PortalAppearance : public Appearance {
    Q_OBJECT

public:
    void start() override;

private:
    void handleAnswer(QDBusPendingCallWatcher* call);
    void report(const QVariant& value);

private Q_SLOTS:
    void handleSettingChanged(const QDBusMessage& signal);
};
