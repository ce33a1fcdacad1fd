// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

/// The settings of the desktop.
class SystemSettings : public QObject {
    Q_OBJECT

public:
    /// Opens the page on which the person can give access to the location.
    virtual void openLocationSettings() = 0;

Q_SIGNALS:
    /// There is no such page that could be opened: what the person can do instead.
    void cannotOpen(const QString& advice);
};
