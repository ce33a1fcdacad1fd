// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

enum class ColorScheme { Light, Dark };

/// Tells whether the desktop is set to light or dark.
class Appearance : public QObject {
    Q_OBJECT

public:
    /// Asks for the colour scheme and follows it from then on. Returns at once; a desktop that does not tell is never
    /// heard of.
    virtual void start() = 0;

Q_SIGNALS:
    void colorSchemeReported(ColorScheme scheme);
};
