// SPDX-License-Identifier: GPL-3.0-or-later
#include "MenuStyle.h"

#include "Symbol.h"
#include "Theme.h"

#include <QMenu>
#include <QPainter>
#include <QStyleOption>

namespace {

constexpr int menuPadding = 6;
constexpr QMargins entryPadding(6, 5, 10, 5);
constexpr qreal entryRadius = 6.0;
constexpr int columnGap = 16;
constexpr int arrowSize = 10;
constexpr int separatorHeight = 9;

QFont headingFont(const QStyleOptionMenuItem& item)
{
    QFont font = item.font;
    font.setBold(true);
    return font;
}

} // namespace

MenuStyle::MenuStyle(const QSize& icon)
    : m_icon(icon)
{
}

void MenuStyle::apply(QMenu& menu, const QSize& icon)
{
    QPalette colors = menu.palette();
    colors.setColor(QPalette::Base, themeFor(colors).selected);
    menu.setPalette(colors);
    auto* style = new MenuStyle(icon);
    style->setParent(&menu);
    menu.setStyle(style);
}

int MenuStyle::iconRoom() const
{
    return m_icon.isEmpty() ? 0 : m_icon.width() + columnGap;
}

int MenuStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                         QStyleHintReturn* data) const
{
    return hint == SH_Menu_SupportsSections ? 1 : QProxyStyle::styleHint(hint, option, widget, data);
}

int MenuStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const
{
    switch (metric) {
    case PM_SmallIconSize:
        return m_icon.width();
    case PM_MenuHMargin:
    case PM_MenuVMargin:
        return menuPadding;
    default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

QSize MenuStyle::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                                  const QWidget* widget) const
{
    const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
    if (type != CT_MenuItem || item == nullptr)
        return QProxyStyle::sizeFromContents(type, option, size, widget);
    if (item->menuItemType == QStyleOptionMenuItem::Separator && item->text.isEmpty())
        return {size.width(), separatorHeight};
    if (item->menuItemType == QStyleOptionMenuItem::Separator)
        return QFontMetrics(headingFont(*item)).size(Qt::TextSingleLine, item->text).grownBy(entryPadding);
    const QStringList texts = item->text.split(u'\t');
    const int gaps = columnGap * static_cast<int>(texts.size() - 1);
    QSize whole(iconRoom() + gaps, qMax(m_icon.height(), item->fontMetrics.height()));
    if (item->menuItemType == QStyleOptionMenuItem::SubMenu)
        whole.rwidth() += columnGap + arrowSize;
    for (const QString& text : texts)
        whole.rwidth() += item->fontMetrics.size(Qt::TextShowMnemonic, text).width();
    return whole.grownBy(entryPadding);
}

void MenuStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                            const QWidget* widget) const
{
    const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
    if (element != CE_MenuItem || item == nullptr)
        return QProxyStyle::drawControl(element, option, painter, widget);
    if (item->menuItemType == QStyleOptionMenuItem::Separator)
        drawSeparator(*item, *painter);
    else
        drawEntry(*item, *painter);
}

void MenuStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                              const QWidget* widget) const
{
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    if (element != PE_PanelMenu)
        return;
    painter->setPen(themeFor(option->palette).controlBorder);
    painter->drawRect(option->rect.adjusted(0, 0, -1, -1));
}

void MenuStyle::drawSeparator(const QStyleOptionMenuItem& item, QPainter& painter) const
{
    if (item.text.isEmpty()) {
        painter.fillRect(alignedRect(item.direction, Qt::AlignCenter, {item.rect.width(), 1}, item.rect),
                         themeFor(item.palette).border);
        return;
    }
    painter.save();
    painter.setFont(headingFont(item));
    drawItemText(&painter, item.rect.marginsRemoved(entryPadding),
                 static_cast<int>(visualAlignment(item.direction, Qt::AlignLeft | Qt::AlignVCenter)) |
                     Qt::TextSingleLine,
                 item.palette, true, item.text, QPalette::Text);
    painter.restore();
}

void MenuStyle::drawEntry(const QStyleOptionMenuItem& item, QPainter& painter) const
{
    const bool isActive = (item.state & State_Selected) != 0;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(isActive       ? item.palette.color(QPalette::Highlight)
                     : item.checked ? themeFor(item.palette).trough
                                    : QColor(Qt::transparent));
    painter.drawRoundedRect(item.rect, entryRadius, entryRadius);

    const QRect inside = item.rect.marginsRemoved(entryPadding);
    item.icon.paint(&painter, alignedRect(item.direction, Qt::AlignLeft | Qt::AlignVCenter, m_icon, inside),
                    Qt::AlignCenter, isActive ? QIcon::Active : QIcon::Normal);
    const QRect beside = visualRect(item.direction, inside, inside.adjusted(iconRoom(), 0, 0, 0));
    const auto draw = [&](Qt::Alignment side, const QString& text) {
        drawItemText(&painter, beside,
                     static_cast<int>(visualAlignment(item.direction, side | Qt::AlignVCenter)) | Qt::TextShowMnemonic |
                         Qt::TextSingleLine,
                     item.palette, true, text, isActive ? QPalette::HighlightedText : QPalette::Text);
    };
    draw(Qt::AlignLeft, item.text.section(u'\t', 0, 0));
    draw(Qt::AlignRight, item.text.section(u'\t', 1));
    if (item.menuItemType == QStyleOptionMenuItem::SubMenu)
        drawSymbol(painter,
                   alignedRect(item.direction, Qt::AlignRight | Qt::AlignVCenter, {arrowSize, arrowSize}, inside),
                   item.direction == Qt::LeftToRight ? Symbol::GreaterThan : Symbol::LessThan,
                   item.palette.color(isActive ? QPalette::HighlightedText : QPalette::Text));
    painter.restore();
}
