// SPDX-License-Identifier: GPL-3.0-or-later
#include "HoverLabel.h"

#include "ElidedLines.h"
#include "Fonts.h"
#include "Outline.h"
#include "Theme.h"

#include <QEvent>
#include <QPainter>
#include <QPropertyAnimation>
#include <QStyle>

namespace {

constexpr int fadeMilliseconds = 120;
constexpr qsizetype mostLinesBelow = 4;
// In the usual font, with which it grows.
constexpr int widestBelow = 240;

} // namespace

HoverLabel::HoverLabel(QWidget* anchor, const QRect& area, const Style& style)
    : QWidget(anchor->window())
    , m_anchor(anchor)
    , m_area(area)
    , m_style(style)
    , m_fade(new QPropertyAnimation(this, "opacity", this))
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFont(fonts::caption(anchor->window()->font()));
    // A style without animations means that the person wants none.
    const bool fades = QWidget::style()->styleHint(QStyle::SH_Widget_Animation_Duration, nullptr, this) > 0;
    m_fade->setDuration(fades ? fadeMilliseconds : 0);
    for (auto* other : window()->findChildren<HoverLabel*>(Qt::FindDirectChildrenOnly)) {
        if (other == this)
            continue;
        m_opacity = other->m_opacity;
        delete other;
    }
    // Scrolling moves an ancestor of the anchor, not the anchor itself.
    for (QWidget* moving = anchor; moving != nullptr && moving != window(); moving = moving->parentWidget())
        moving->installEventFilter(this);
    window()->installEventFilter(this);
}

void HoverLabel::setText(const QString& text, const Mark& mark, const QString& below)
{
    m_mark = mark;
    m_text = fontMetrics().elidedText(text, Qt::ElideRight, room() - markRoom());
    m_below = below;
    reposition();
    raise();
    show();
    fadeTo(1.0);
    update();
}

void HoverLabel::dismiss()
{
    connect(m_fade, &QPropertyAnimation::finished, this, &QObject::deleteLater);
    fadeTo(0.0);
}

QSize HoverLabel::sizeHint() const
{
    QSize text = fontMetrics().size(Qt::TextSingleLine, m_text).grownBy({markRoom(), 0, 0, 0});
    for (const QString& line : linesBelow()) {
        const QSize size = fontMetrics().size(Qt::TextSingleLine, line);
        text = {qMax(text.width(), size.width()), text.height() + size.height()};
    }
    return text.grownBy(m_style.padding);
}

QStringList HoverLabel::linesBelow() const
{
    return elidedLines(m_below, font(), qMin(fonts::grown(widestBelow, font()), room()), mostLinesBelow);
}

int HoverLabel::room() const
{
    return window()->width() - m_style.padding.left() - m_style.padding.right();
}

int HoverLabel::markSize() const
{
    return fontMetrics().capHeight();
}

int HoverLabel::markRoom() const
{
    return m_mark ? markSize() * 3 / 2 : 0;
}

void HoverLabel::setOpacity(qreal opacity)
{
    m_opacity = opacity;
    update();
}

bool HoverLabel::eventFilter(QObject* /*watched*/, QEvent* event)
{
    if (event->type() == QEvent::Move || event->type() == QEvent::Resize)
        reposition();
    return false;
}

void HoverLabel::paintEvent(QPaintEvent* /*event*/)
{
    QColor background = themeFor(palette()).hoverLabel;
    background.setAlphaF(static_cast<float>(m_style.backgroundOpacity));
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setOpacity(m_opacity);
    painter.setPen(Qt::NoPen);
    painter.setBrush(background);
    painter.drawRoundedRect(rect(), m_style.radius, m_style.radius);
    drawOutline(painter, rect(), m_style.radius, themeFor(palette()));
    const QRect contents = rect().marginsRemoved(m_style.padding);
    const QStringList below = linesBelow();
    QRect line = contents;
    line.setHeight(contents.height() / static_cast<int>(1 + below.size()));
    painter.setPen(Qt::white);
    painter.drawText(QStyle::visualRect(layoutDirection(), line, line.adjusted(markRoom(), 0, 0, 0)),
                     below.isEmpty() ? Qt::AlignCenter : static_cast<int>(Qt::AlignLeft) | Qt::AlignVCenter, m_text);
    if (m_mark)
        m_mark(painter, QStyle::alignedRect(layoutDirection(), Qt::AlignLeft | Qt::AlignVCenter,
                                            {markSize(), markSize()}, line));
    for (const QString& words : below) {
        line.translate(0, line.height());
        const int side = words.isRightToLeft() ? Qt::AlignRight : Qt::AlignLeft;
        painter.drawText(line, side | Qt::AlignVCenter, words);
    }
}

void HoverLabel::fadeTo(qreal opacity)
{
    m_fade->stop();
    m_fade->setStartValue(m_opacity);
    m_fade->setEndValue(opacity);
    m_fade->start();
}

void HoverLabel::reposition()
{
    if (!m_anchor)
        return;
    const QRect anchor(m_anchor->mapTo(window(), m_area.topLeft()), m_area.size());
    setGeometry(hoverLabelRect(sizeHint(), anchor, window()->rect()));
}

QRect hoverLabelRect(QSize label, const QRect& anchor, const QRect& window)
{
    constexpr int gap = 2;
    QRect place(QPoint(), label);
    place.moveCenter(anchor.center());
    place.moveBottom(anchor.top() - gap);
    if (place.top() < window.top())
        place.moveTop(anchor.bottom() + gap);
    place.moveBottom(qMin(place.bottom(), window.bottom()));
    place.moveRight(qMin(place.right(), window.right()));
    place.moveLeft(qMax(place.left(), window.left()));
    return place;
}
