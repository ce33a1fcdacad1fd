// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

enum class ColorScheme { Light, Dark };
enum class Contrast { Normal, High };

/// Reports how the desktop wants its programs to look.
class Appearance : public QObject {
    Q_OBJECT

public:
    /// Asks for the preferences and follows their changes. Returns at once; a desktop without a preference reports
    /// none.
    virtual void start() = 0;

Q_SIGNALS:
    void colorSchemeReported(ColorScheme scheme);
    void contrastReported(Contrast contrast);
    void reducedMotionReported(bool isReduced);
};
