// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

/// Turns the signals with which a session or terminal ends a program into a Qt signal. Create only one.
class QuitSignals : public QObject {
    Q_OBJECT

public:
    QuitSignals();
    ~QuitSignals() override;

Q_SIGNALS:
    void requested();
};
