// SPDX-License-Identifier: GPL-3.0-or-later
#include "KeyCap.h"

#include "Accessibility.h"
#include "Fonts.h"
#include "Theme.h"

#include <QPainter>

namespace {

constexpr QMargins keyPadding(5, 2, 5, 2);
constexpr qreal keyRadius = 4.0;

} // namespace

QSize keyCapSize(const QString& name, const QFont& font)
{
    return QFontMetrics(font).size(Qt::TextSingleLine, name).grownBy(keyPadding);
}

void drawKeyCap(QPainter& painter, const QRectF& area, const QString& name, const QPalette& palette)
{
    const Theme& theme = themeFor(palette);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(theme.dimText);
    painter.drawRoundedRect(area.adjusted(0.5, 0.5, -0.5, -0.5), keyRadius, keyRadius);
    painter.setPen(theme.text);
    painter.drawText(area, Qt::AlignCenter, name);
}

KeyCap::KeyCap(const QString& name, QWidget* parent)
    : QWidget(parent)
    , m_name(name)
{
    setFont(fonts::caption(font()));
    setAccessibleRole(*this, QAccessible::StaticText);
    setAccessibleName(name);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize KeyCap::sizeHint() const
{
    return keyCapSize(m_name, font());
}

void KeyCap::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    drawKeyCap(painter, rect(), m_name, palette());
}
