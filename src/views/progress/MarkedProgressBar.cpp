// SPDX-License-Identifier: GPL-3.0-or-later
#include "MarkedProgressBar.h"

#include "Accessibility.h"
#include "Fonts.h"
#include "HoverLabel.h"
#include "Labels.h"
#include "Outline.h"
#include "StatisticsTexts.h"
#include "Theme.h"

#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QToolTip>

#include <algorithm>
#include <chrono>
#include <cmath>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto tooltipDelay = 300ms;
// In parts of the height.
constexpr qreal barRadius = 7.0 / 24;
// How far captions extend past the ends of the bar: as wanted, and where there is little room.
constexpr qreal captionOverhang = 40.0 / 24;
constexpr qreal leastOverhang = 10.0 / 24;
// Captions do not touch the edge of the card.
constexpr qreal edgeMargin = 6.0;
// A line is too thin to be hit.
constexpr qreal lineReach = 4.0;

constexpr HoverLabel::Style tooltipStyle{.padding = {6, 6, 6, 6}, .radius = 4.0, .backgroundOpacity = 1.0};

QFont labelFont(const QWidget& widget)
{
    return fonts::body(widget.font(), QFont::Bold);
}

} // namespace

MarkedProgressBar::MarkedProgressBar(QWidget* parent)
    : QWidget(parent)
{
    setAccessibleRole(*this, QAccessible::Graphic);
    m_contents.markerFont = fonts::body(font()); // or the empty bar would load a font that nothing else is drawn in
    setMouseTracking(true);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    m_hoverDelay.setSingleShot(true);
    m_hoverDelay.setInterval(tooltipDelay);
    connect(&m_hoverDelay, &QTimer::timeout, this, [this] {
        m_tooltip = new HoverLabel(this, barRect(), tooltipStyle);
        m_tooltip->setText(tooltipText());
    });
}

MarkedProgressBar::~MarkedProgressBar()
{
    delete m_tooltip;
}

void MarkedProgressBar::setContents(const Contents& contents)
{
    m_contents = contents;
    setAccessibleName(accessibleText());
    if (m_tooltip)
        m_tooltip->setText(tooltipText());
    updateGeometry();
    update();
}

QColor MarkedProgressBar::colorOf(const ProgressMarker& marker) const
{
    if (marker.position <= m_contents.progress)
        return m_contents.reachedMarkerColor;
    if (marker.position <= m_contents.progressPrediction)
        return m_contents.predictedMarkerColor;
    return m_contents.markerColor;
}

QString MarkedProgressBar::tooltipText() const
{
    return averageText(m_contents.label.value_or(m_contents.progress));
}

QString MarkedProgressBar::accessibleText() const
{
    QStringList parts{tooltipText()};
    if (m_contents.predictedLabel)
        parts.append(tr("%1 with the planned days").arg(twoDecimals(*m_contents.predictedLabel)));
    for (const ProgressMarker& marker : m_contents.markers) {
        const QString text = marker.position <= m_contents.progress ? tr("%1: reached")
                             : marker.position <= m_contents.progressPrediction
                                 ? tr("%1: reached with the planned days")
                                 : tr("%1: not reached", "goal on the bar");
        parts.append(text.arg(marker.description));
    }
    return parts.join(u"; "_s);
}

QString MarkedProgressBar::markerTextAt(QPoint place) const
{
    const ProgressBarGeometry shown = barGeometry();
    const QPointF inBar = place - barRect().topLeft();
    QStringList texts;
    for (qsizetype i = 0; i < shown.markers.size(); ++i) {
        const auto& [line, caption] = shown.markers.at(i);
        if (caption.contains(inBar) || line.adjusted(-lineReach, 0, lineReach, 0).contains(inBar))
            texts.append(m_contents.markers.at(i).description);
    }
    texts.removeDuplicates();
    return texts.join(", "_L1);
}

QRect MarkedProgressBar::barRect() const
{
    return {(width() - m_contents.barWidth) / 2, 0, m_contents.barWidth, static_cast<int>(m_contents.barHeight)};
}

QSize MarkedProgressBar::sizeHint() const
{
    return sizeWith(captionOverhang * m_contents.barHeight + edgeMargin);
}

QSize MarkedProgressBar::minimumSizeHint() const
{
    return sizeWith(leastOverhang * m_contents.barHeight);
}

QSize MarkedProgressBar::sizeWith(qreal overhang) const
{
    return {m_contents.barWidth + 2 * qRound(overhang), static_cast<int>(std::ceil(barGeometry().height))};
}

ProgressBarGeometry MarkedProgressBar::barGeometry() const
{
    const QFontMetricsF captions(m_contents.markerFont);
    const qreal free = 0.5 * (width() - m_contents.barWidth) - edgeMargin;
    ProgressBarMeasures measures{.width = static_cast<qreal>(m_contents.barWidth),
                                 .overhang = std::clamp(free, 0.0, captionOverhang * m_contents.barHeight),
                                 .barHeight = m_contents.barHeight,
                                 .progress = m_contents.progress,
                                 .prediction = m_contents.progressPrediction,
                                 .labelWidth = 0.0,
                                 .markerLineWidth = m_contents.markerLineWidth,
                                 .markerLineHeight = m_contents.markerLineHeight,
                                 .captionHeight = captions.height(),
                                 .markers = {}};
    if (m_contents.label)
        measures.labelWidth = QFontMetricsF(labelFont(*this)).horizontalAdvance(twoDecimals(*m_contents.label));
    for (const ProgressMarker& marker : m_contents.markers) {
        const QString& text = marker.description;
        measures.markers.append({marker.position, text, std::ceil(captions.horizontalAdvance(text)), marker.isTarget});
    }
    return progressBarGeometry(measures);
}

bool MarkedProgressBar::event(QEvent* event)
{
    if (event->type() != QEvent::ToolTip)
        return QWidget::event(event);
    const auto& help = *static_cast<QHelpEvent*>(event);
    QToolTip::showText(help.globalPos(), labels::help(markerTextAt(help.pos())), this);
    return true;
}

void MarkedProgressBar::leaveEvent(QEvent* event)
{
    QWidget::leaveEvent(event);
    setHovered(false);
}

void MarkedProgressBar::hideEvent(QHideEvent* event)
{
    QWidget::hideEvent(event);
    setHovered(false);
}

void MarkedProgressBar::mouseMoveEvent(QMouseEvent* event)
{
    QWidget::mouseMoveEvent(event);
    setHovered(barRect().contains(event->position().toPoint()));
}

void MarkedProgressBar::setHovered(bool inside)
{
    if (m_hovering == inside)
        return;
    m_hovering = inside;
    if (m_hovering) {
        m_hoverDelay.start();
        return;
    }
    m_hoverDelay.stop();
    if (m_tooltip)
        m_tooltip->dismiss();
    m_tooltip.clear();
}

void MarkedProgressBar::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(barRect().topLeft());
    const ProgressBarGeometry shown = barGeometry();
    paintBar(painter, shown);
    if (m_contents.label)
        paintLabel(painter, shown);
    paintMarkers(painter, shown);
}

void MarkedProgressBar::paintBar(QPainter& painter, const ProgressBarGeometry& geometry) const
{
    const qreal radius = barRadius * m_contents.barHeight;
    QPainterPath outline;
    outline.addRoundedRect(geometry.bar, radius, radius);
    // However short, a fill is clipped by the left end of the bar and has a round right end. Only what is shorter than
    // its two round ends is clipped, because that takes longer than all else.
    const auto fill = [&](const QRectF& rect, const QColor& color) {
        const bool isShort = rect.width() < 2 * radius;
        QPainterPath part;
        part.addRoundedRect(isShort ? rect.adjusted(-2 * radius, 0, 0, 0) : rect, radius, radius);
        painter.fillPath(isShort ? part.intersected(outline) : part, color);
    };
    painter.fillPath(outline, m_contents.backgroundColor);
    if (m_contents.progressPrediction > m_contents.progress)
        fill(geometry.prediction, m_contents.progressPredictionColor);
    if (m_contents.progress > 0.0)
        fill(geometry.progress, m_contents.progressColor);
    drawOutline(painter, geometry.bar, radius, themeFor(palette()));
}

void MarkedProgressBar::paintLabel(QPainter& painter, const ProgressBarGeometry& geometry) const
{
    // Each part of the number takes the text colour that contrasts with the fill behind it.
    const QRectF predicted = geometry.prediction.adjusted(geometry.progress.width(), 0, 0, 0);
    const QRectF empty = geometry.bar.adjusted(qMax(geometry.progress.width(), geometry.prediction.width()), 0, 0, 0);
    const std::pair<QRectF, QColor> backgrounds[]{{geometry.progress, m_contents.progressColor},
                                                  {predicted, m_contents.progressPredictionColor},
                                                  {empty, m_contents.backgroundColor}};
    painter.setFont(labelFont(*this));
    for (const auto& [background, color] : backgrounds) {
        if (background.width() <= 0.0)
            continue;
        painter.setClipRect(background);
        painter.setPen(readableTextOn(color));
        painter.drawText(geometry.label, Qt::AlignCenter | Qt::TextDontClip, twoDecimals(*m_contents.label));
    }
    painter.setClipping(false);
}

void MarkedProgressBar::paintMarkers(QPainter& painter, const ProgressBarGeometry& geometry) const
{
    painter.setFont(m_contents.markerFont);
    for (qsizetype i = 0; i < geometry.markers.size(); ++i) {
        const auto& [line, caption] = geometry.markers.at(i);
        const ProgressMarker& marker = m_contents.markers.at(i);
        painter.fillRect(line, colorOf(marker));
        painter.setPen(colorOf(marker));
        // Rounded because the width is a difference, which can be a little less than a whole number.
        painter.drawText(
            caption, Qt::AlignCenter,
            painter.fontMetrics().elidedText(marker.description, Qt::ElideMiddle, qRound(caption.width())));
    }
    painter.setPen(Qt::NoPen);
    painter.setBrush(m_contents.markerColor);
    for (const QPointF& place : geometry.separators)
        painter.drawEllipse(place, m_contents.markerLineWidth / 2, m_contents.markerLineWidth / 2);
}
