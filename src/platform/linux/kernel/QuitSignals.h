// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

/// Turns the signals by which a session or a terminal ends a program into one of the event loop. There is one of these.
class QuitSignals : public QObject {
    Q_OBJECT

public:
    QuitSignals();
    ~QuitSignals() override;

Q_SIGNALS:
    void requested();
};
