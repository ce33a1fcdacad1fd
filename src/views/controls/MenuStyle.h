// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QProxyStyle>
#include <QSize>

class QMenu;
class QStyleOptionMenuItem;

/// Menus with room around their entries, with icons of any size, with headings (QMenu::addSection()), and with a frame
/// that stands out from a dark card.
class MenuStyle : public QProxyStyle {
    Q_OBJECT

public:
    static void apply(QMenu& menu, const QSize& icon = {});

    [[nodiscard]] int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                                QStyleHintReturn* data) const override;
    [[nodiscard]] int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
    [[nodiscard]] QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                                         const QWidget* widget) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;

private:
    explicit MenuStyle(const QSize& icon);
    [[nodiscard]] int iconRoom() const;
    void drawSeparator(const QStyleOptionMenuItem& item, QPainter& painter) const;
    void drawEntry(const QStyleOptionMenuItem& item, QPainter& painter) const;

    QSize m_icon;
};
