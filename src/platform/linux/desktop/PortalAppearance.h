// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Appearance.h"

#include <QHash>

class QDBusMessage;
class QDBusPendingCallWatcher;

/// The preferences in the settings of the desktop portal: those of org.freedesktop.appearance, and those of GNOME,
/// which not every version passes on there.
class PortalAppearance : public Appearance {
    Q_OBJECT

public:
    void start() override;

private:
    void handleReply(QDBusPendingCallWatcher* call);
    void take(const QString& key, const QVariant& value);
    void report();

private Q_SLOTS:
    void handleSettingChanged(const QDBusMessage& signal);

private:
    /// The values that are known, by key. No key is in two groups. True is 1.
    QHash<QString, uint> m_values;
};
