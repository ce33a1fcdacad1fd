// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

/// Tells whether the desktop has a place where an icon of this program is shown.
class TrayHost : public QObject {
    Q_OBJECT

public:
    /// Looks for the place and follows it from then on. Returns at once; until appeared() there is none.
    virtual void start() = 0;

Q_SIGNALS:
    /// These two come in turn.
    void appeared();
    void gone();
};
