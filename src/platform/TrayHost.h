// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

/// Reports whether the desktop has a tray for this program's icon.
class TrayHost : public QObject {
    Q_OBJECT

public:
    /// Looks for a tray and follows its coming and going. Returns at once; until appeared() there is none.
    virtual void start() = 0;

Q_SIGNALS:
    /// These two alternate.
    void appeared();
    void gone();
};
