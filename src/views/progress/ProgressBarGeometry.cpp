// SPDX-License-Identifier: GPL-3.0-or-later
#include "ProgressBarGeometry.h"

#include "CaptionRows.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace {

// The other lengths are for a bar of this height, and grow with it.
constexpr qreal ordinaryBarHeight = 24.0;
constexpr qreal labelInset = 25.0;
constexpr qreal labelMargin = 8.0;
constexpr qreal firstRow = 2.0;
constexpr qreal rowPitch = 20.0;
constexpr qreal captionGap = 12.0;

// The number is just inside the end of the progress, or just behind it while the progress is too short.
QRectF labelRect(const ProgressBarMeasures& measures, qreal scale)
{
    const qreal end = measures.progress * measures.width;
    const qreal half = measures.labelWidth / 2;
    const qreal inside = end - labelInset * scale;
    const qreal centre = inside >= half + labelMargin * scale ? inside : end + labelMargin * scale + half;
    return {centre - half, 0.0, measures.labelWidth, measures.barHeight};
}

// The middle between a caption and one that begins right after it.
std::optional<QPointF> separator(const QRectF& caption, const QRectF& other, qreal gap)
{
    const bool isNext = caption.top() == other.top() && std::abs(other.left() - caption.right() - gap) < 0.5;
    return isNext ? std::optional(QPointF(caption.right() + gap / 2, caption.center().y())) : std::nullopt;
}

} // namespace

ProgressBarGeometry progressBarGeometry(const ProgressBarMeasures& measures)
{
    const qreal scale = measures.barHeight / ordinaryBarHeight;
    const qreal top = measures.barHeight + measures.markerLineHeight + firstRow * scale;
    const qreal pitch = std::max(rowPitch * scale, measures.captionHeight);
    ProgressBarGeometry geometry;
    geometry.bar = {0.0, 0.0, measures.width, measures.barHeight};
    geometry.prediction = {0.0, 0.0, measures.prediction * measures.width, measures.barHeight};
    geometry.progress = {0.0, 0.0, measures.progress * measures.width, measures.barHeight};
    geometry.label = labelRect(measures, scale);
    geometry.height = top + pitch + measures.captionHeight;

    QList<Caption> captions;
    for (const auto& marker : measures.markers)
        captions.append({marker.position * measures.width, marker.caption, marker.captionWidth, marker.isTarget});
    const Span room{-measures.overhang, measures.width + measures.overhang};
    const QList<PlacedCaption> placed = placeCaptions(captions, room, captionGap * scale);
    for (qsizetype i = 0; i < placed.size(); ++i) {
        const auto& [row, span] = placed.at(i);
        geometry.markers.append({{captions.at(i).centre - measures.markerLineWidth / 2, measures.barHeight,
                                  measures.markerLineWidth, measures.markerLineHeight},
                                 {span.left, top + row * pitch, span.width(), measures.captionHeight}});
    }
    for (const auto& [line, caption] : geometry.markers) {
        for (const auto& [otherLine, other] : geometry.markers) {
            if (const auto place = separator(caption, other, captionGap * scale))
                geometry.separators.append(*place);
        }
    }
    return geometry;
}
