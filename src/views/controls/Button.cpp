// SPDX-License-Identifier: GPL-3.0-or-later
#include "Button.h"

#include "Fonts.h"
#include "Outline.h"
#include "ReturnKey.h"
#include "SymbolLabel.h"
#include "Theme.h"

#include <QKeyEvent>
#include <QPainter>

namespace {

constexpr QMargins buttonPadding(16, 8, 16, 8);
constexpr qreal buttonRadius = 8.0;
constexpr int usualButtonSymbolSize = 14;

} // namespace

Button::Button(const QString& text, QWidget* parent)
    : QPushButton(text, parent)
{
    setFont(fonts::body(font()));
    setAutoDefault(false);
    setFocusPolicy(Qt::TabFocus);
    setAttribute(Qt::WA_Hover);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void Button::setProminent(bool prominent)
{
    m_prominent = prominent;
    update();
}

void Button::setSymbol(std::optional<Symbol> symbol)
{
    m_symbol = symbol;
    updateGeometry();
    update();
}

SymbolLabel Button::label() const
{
    return {text(), m_symbol, fonts::grown(usualButtonSymbolSize, font())};
}

QSize Button::sizeHint() const
{
    return label().size(fontMetrics()).grownBy(buttonPadding);
}

void Button::focusInEvent(QFocusEvent* event)
{
    m_focusVisible.update(event->reason());
    QPushButton::focusInEvent(event);
}

void Button::keyPressEvent(QKeyEvent* event)
{
    m_focusVisible.show();
    if (!clickByReturn(*this, *event))
        QPushButton::keyPressEvent(event);
}

void Button::paintEvent(QPaintEvent* /*event*/)
{
    const Theme& theme = themeFor(palette());
    const bool isFilled = (m_prominent || isDefault()) && isEnabled();
    QColor face = isFilled ? palette().color(QPalette::Highlight) : theme.card;
    if (isEnabled() && (underMouse() || isDown()))
        face = isFilled ? face.darker(isDown() ? 125 : 112) : (isDown() ? theme.pressed : theme.trough);
    const QRectF area = rect();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(isFilled ? face : isEnabled() ? theme.controlBorder : theme.border);
    painter.setBrush(face);
    painter.drawRoundedRect(area.adjusted(0.5, 0.5, -0.5, -0.5), buttonRadius, buttonRadius);
    if (isFilled)
        drawOutline(painter, area, buttonRadius, theme);
    painter.setPen(isFilled ? QColor(Qt::white) : isEnabled() ? theme.text : theme.disabledText);
    label().paint(painter, rect(), layoutDirection());
    // Inside, so that a button ends where its neighbours above and below do.
    if (isFilled)
        m_focusVisible.drawRing(painter, *this, area.adjusted(3, 3, -3, -3), buttonRadius - 3, Qt::white);
    else
        m_focusVisible.drawRing(painter, *this, area.adjusted(1, 1, -1, -1), buttonRadius);
}
