// SPDX-License-Identifier: GPL-3.0-or-later
#include "Switch.h"

#include "Follow.h"
#include "Fonts.h"
#include "Outline.h"
#include "ReturnKey.h"
#include "Theme.h"

#include <QPainter>
#include <QStyle>

namespace {

constexpr QSize trackSize(38, 22);
constexpr int switchGap = 16;
constexpr int switchRingMargin = 4;
constexpr qreal knobInset = 3.5;
constexpr int textFlags = Qt::TextShowMnemonic | Qt::TextWordWrap;
// In the usual font, with which it grows.
constexpr int leastWidth = 260;

} // namespace

Switch::Switch(const QString& text, QWidget* parent)
    : QCheckBox(text, parent)
{
    setFont(fonts::body(font()));
    setFocusPolicy(Qt::TabFocus);
    QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Minimum);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
}

QSize Switch::sizeFor(int width) const
{
    constexpr int besideText = switchGap + trackSize.width() + switchRingMargin;
    const QSize words =
        fontMetrics().boundingRect({0, 0, width - besideText, QWIDGETSIZE_MAX}, textFlags, text()).size();
    return {words.width() + besideText, qMax(words.height(), trackSize.height()) + 2 * switchRingMargin};
}

QSize Switch::sizeHint() const
{
    return sizeFor(QWIDGETSIZE_MAX);
}

QSize Switch::minimumSizeHint() const
{
    return sizeHint().boundedTo({fonts::grown(leastWidth, font()), QWIDGETSIZE_MAX});
}

int Switch::heightForWidth(int width) const
{
    return sizeFor(width).height();
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
    const QMargins besideText(0, 0, trackSize.width() + switchGap, 0);
    const QRect words = QStyle::visualRect(layoutDirection(), inside, inside.marginsRemoved(besideText));
    const Qt::Alignment side = QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft) | Qt::AlignVCenter;
    painter.drawText(words, static_cast<int>(side) | textFlags, text());
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
    drawOutline(painter, track, radius, theme);

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
