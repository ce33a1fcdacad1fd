// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QProxyStyle>

/// The program's style for people who want no animations.
class StillStyle : public QProxyStyle {
    Q_OBJECT

public:
    StillStyle()
        : QProxyStyle(QStringLiteral("Fusion"))
    {
    }

    [[nodiscard]] int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                                QStyleHintReturn* returned) const override
    {
        return hint == SH_Widget_Animation_Duration ? 0 : QProxyStyle::styleHint(hint, option, widget, returned);
    }
};
