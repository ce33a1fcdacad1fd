// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

/// The desktop's settings program.
class SystemSettings : public QObject {
    Q_OBJECT

public:
    /// Opens the page where the person can allow access to the location.
    virtual void openLocationSettings() = 0;

Q_SIGNALS:
    /// No page could be opened; `advice` says what the person can do instead.
    void cannotOpen(const QString& advice);
};
