// SPDX-License-Identifier: GPL-3.0-or-later
#include "Switch.h"

#include "Follow.h"
#include "Fonts.h"
#include "ReturnKey.h"
#include "Theme.h"

#include <QPainter>
#include <QStyle>

namespace {

constexpr QSize trackSize(38, 22);
constexpr int switchGap = 16;
constexpr int switchRingMargin = 4;
constexpr qreal knobInset = 3.5;

} // namespace

Switch::Switch(const QString& text, QWidget* parent)
    : QCheckBox(text, parent)
{
    setFont(fonts::body(font()));
    setFocusPolicy(Qt::TabFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

QSize Switch::sizeHint() const
{
    const QSize words = fontMetrics().size(Qt::TextShowMnemonic, text());
    return {words.width() + switchGap + trackSize.width() + switchRingMargin,
            qMax(words.height(), trackSize.height()) + 2 * switchRingMargin};
}

bool Switch::hitButton(const QPoint& position) const
{
    return rect().contains(position);
}

void Switch::focusInEvent(QFocusEvent* event)
{
    m_focusVisible.update(event->reason());
    QCheckBox::focusInEvent(event);
}

void Switch::keyPressEvent(QKeyEvent* event)
{
    m_focusVisible.show();
    if (!clickByReturn(*this, *event))
        QCheckBox::keyPressEvent(event);
}

void Switch::paintEvent(QPaintEvent* /*event*/)
{
    const QRect inside = rect().marginsRemoved({0, 0, switchRingMargin, 0});
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::WindowText));
    painter.drawText(inside,
                     static_cast<int>(QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft) | Qt::AlignVCenter) |
                         Qt::TextShowMnemonic,
                     text());
    paintTrack(painter, QStyle::alignedRect(layoutDirection(), Qt::AlignRight | Qt::AlignVCenter, trackSize, inside));
}

void Switch::paintTrack(QPainter& painter, const QRectF& track) const
{
    const Theme& theme = themeFor(palette());
    const qreal radius = track.height() / 2.0;
    const QColor accent = palette().color(QPalette::Highlight);
    // Off is only an outline, so that the states differ by more than colour.
    painter.setPen(isChecked() ? QPen(accent, 1.5) : QPen(theme.dimText, 1.5));
    painter.setBrush(isChecked() ? accent : theme.card);
    painter.drawRoundedRect(track.adjusted(0.75, 0.75, -0.75, -0.75), radius, radius);

    const bool knobIsRight = isChecked() == (layoutDirection() == Qt::LeftToRight);
    const qreal knobSize = track.height() - 2.0 * knobInset;
    const qreal left = knobIsRight ? track.right() - knobInset - knobSize : track.left() + knobInset;
    painter.setPen(Qt::NoPen);
    painter.setBrush(isChecked() ? QColor(Qt::white) : theme.dimText);
    painter.drawEllipse(QRectF(left, track.top() + knobInset, knobSize, knobSize));

    m_focusVisible.drawRing(painter, *this, track.adjusted(-2.5, -2.5, 2.5, 2.5), radius + 2.5);
}

void bindSwitch(Switch* toggle, QProperty<bool>& field)
{
    follow(field, toggle, [toggle, &field] { toggle->setChecked(field); });
    // Not clicked(), which assistive technology does not emit.
    QObject::connect(toggle, &QAbstractButton::toggled, toggle, [&field](bool on) { field = on; });
}
