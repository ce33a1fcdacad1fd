// SPDX-License-Identifier: GPL-3.0-or-later
#include "StatusPicker.h"

#include "Fonts.h"
#include "KeyCap.h"
#include "StateGestures.h"

#include <QMenu>
#include <QPainter>
#include <QProxyStyle>

namespace {

// All keys are as wide as the widest, so that the texts line up.
QSize keySize(const QFont& font)
{
    QSize size;
    for (const DayState state : allDayStates)
        size = size.expandedTo(keyCapSize(keyName(modifierFor(state)), font));
    return size;
}

QIcon keyIcon(ClickModifier modifier, const QWidget& widget)
{
    if (modifier == ClickModifier::None)
        return {};
    const QFont font = fonts::caption(widget.font());
    QPixmap pixmap(keySize(font) * widget.devicePixelRatioF());
    pixmap.setDevicePixelRatio(widget.devicePixelRatioF());
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setFont(font);
    drawKeyCap(painter, {QPointF(), pixmap.deviceIndependentSize()}, keyName(modifier), widget.palette());
    painter.end();
    return pixmap;
}

// Menus expect square icons, but key caps are wide.
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

QMenu* makeStatusPicker(QWidget* parent, const std::function<void(DayState)>& onChosen)
{
    auto* menu = new QMenu(parent);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    auto* style = new KeyColumnStyle(keySize(fonts::caption(menu->font())).width());
    style->setParent(menu);
    menu->setStyle(style);
    for (const DayState state : allDayStates) {
        QAction* action = menu->addAction(keyIcon(modifierFor(state), *menu), description(state));
        action->setIconVisibleInMenu(true);
        QObject::connect(action, &QAction::triggered, menu, [onChosen, state] { onChosen(state); });
    }
    return menu;
}
