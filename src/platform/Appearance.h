// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

enum class ColorScheme { Light, Dark };

/// Reports whether the desktop is light or dark.
class Appearance : public QObject {
    Q_OBJECT

public:
    /// Asks for the colour scheme and follows its changes. Returns at once; a desktop without a colour scheme reports
    /// none.
    virtual void start() = 0;

Q_SIGNALS:
    void colorSchemeReported(ColorScheme scheme);
};
