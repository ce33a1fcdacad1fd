// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Appearance.h"

class QDBusMessage;
class QDBusPendingCallWatcher;

/// The colour scheme from the desktop portal (org.freedesktop.appearance, color-scheme: 1 is dark, 2 is light, 0 is no
/// preference, which GNOME uses for light).
class PortalAppearance : public Appearance {
    Q_OBJECT

public:
    void start() override;

private:
    void handleReply(QDBusPendingCallWatcher* call);
    void report(const QVariant& value);

private Q_SLOTS:
    void handleSettingChanged(const QDBusMessage& signal);
};
