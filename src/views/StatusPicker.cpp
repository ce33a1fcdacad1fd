// SPDX-License-Identifier: GPL-3.0-or-later
#include "StatusPicker.h"

#include "Fonts.h"
#include "StateGestures.h"
#include "Theme.h"

#include <QMenu>
#include <QPainter>
#include <QProxyStyle>

namespace {

constexpr QMargins keyPadding(5, 2, 5, 2);
constexpr qreal keyRadius = 4.0;

// The size of the drawn keys: the widest one's, so that the texts behind them line up.
QSize keySize(const QFont& font)
{
    QSize size;
    for (const DayState state : allDayStates)
        size = size.expandedTo(QFontMetrics(font).size(Qt::TextSingleLine, keyName(modifierReaching(state))));
    return size.grownBy(keyPadding);
}

QIcon keyIcon(ClickModifier modifier, const QWidget& widget)
{
    if (modifier == ClickModifier::None)
        return {};
    const QFont font = fonts::caption(widget.font());
    const Theme& theme = themeFor(widget.palette());
    QPixmap pixmap(keySize(font) * widget.devicePixelRatioF());
    pixmap.setDevicePixelRatio(widget.devicePixelRatioF());
    pixmap.fill(Qt::transparent);
    const QRectF area(QPointF(), pixmap.deviceIndependentSize());
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setFont(font);
    painter.setPen(theme.dimText);
    painter.drawRoundedRect(area.adjusted(0.5, 0.5, -0.5, -0.5), keyRadius, keyRadius);
    painter.setPen(theme.text);
    painter.drawText(area, Qt::AlignCenter, keyName(modifier));
    painter.end();
    return pixmap;
}

// A menu is made for square icons; a key with its name on it is wide.
class KeyColumnStyle : public QProxyStyle {
public:
    explicit KeyColumnStyle(int keyWidth)
        : m_keyWidth(keyWidth)
    {
    }

    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override
    {
        return metric == PM_SmallIconSize ? m_keyWidth : QProxyStyle::pixelMetric(metric, option, widget);
    }

private:
    int m_keyWidth;
};

} // namespace

QMenu* makeStatusPicker(QWidget* parent, const std::function<void(DayState)>& chosen)
{
    auto* menu = new QMenu(parent);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    auto* style = new KeyColumnStyle(keySize(fonts::caption(menu->font())).width());
    style->setParent(menu);
    menu->setStyle(style);
    for (const DayState state : allDayStates) {
        QAction* action = menu->addAction(keyIcon(modifierReaching(state), *menu), description(state));
        action->setIconVisibleInMenu(true);
        QObject::connect(action, &QAction::triggered, menu, [chosen, state] { chosen(state); });
    }
    return menu;
}
