// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Theme.h"

#include <QObject>

class Appearance;
class QSettings;

/// Gives the program the palette and the style that the desktop prefers. The desktop is asked only after the first
/// paint. Until it answers, its last answer holds, or else what its own palette looks like.
class AppLook : public QObject {
    Q_OBJECT

public:
    explicit AppLook(QSettings& settings);

    void follow(Appearance& appearance);

private:
    void change(const Look& look);

    QSettings& m_settings;
    /// A desktop without a preference may still have a palette of high contrast.
    Contrast m_desktopContrast;
};
