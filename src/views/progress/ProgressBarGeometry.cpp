// SPDX-License-Identifier: GPL-3.0-or-later
#include "ProgressBarGeometry.h"

#include <algorithm>
#include <array>
#include <limits>
#include <numeric>
#include <vector>

namespace {

constexpr qreal captionFrame = 80.0;
constexpr qreal captionGap = 8.0;
constexpr qreal labelInset = 25.0;
constexpr qreal labelMargin = 8.0;
constexpr qreal firstRow = 2.0;
constexpr qreal rowPitch = 20.0;

// Centred under the marker, but shifted inwards where it would leave the overhang.
Span wantedCaption(const ProgressBarMeasures& measures, const ProgressBarMeasures::Marker& marker, qreal widest)
{
    const qreal minimum = -ProgressBarGeometry::captionOverhang;
    const qreal maximum = measures.width + ProgressBarGeometry::captionOverhang;
    const qreal width = std::min(marker.captionWidth, widest);
    const qreal left = std::clamp(marker.position * measures.width - width / 2, minimum, maximum - width);
    return {left, left + width};
}

QList<Span> wantedCaptions(const ProgressBarMeasures& measures, qreal widest)
{
    QList<Span> wanted;
    for (const auto& marker : measures.markers)
        wanted.append(wantedCaption(measures, marker, widest));
    return wanted;
}

bool areWhole(const QList<PlacedCaption>& placed, const QList<Span>& wanted)
{
    return std::ranges::equal(placed, wanted, {}, &PlacedCaption::span);
}

// Captions are as wide as their texts if all fit, otherwise at most as wide as the frame under a marker.
QList<PlacedCaption> captionsFor(const ProgressBarMeasures& measures)
{
    const QList<Span> whole = wantedCaptions(measures, measures.width + 2 * ProgressBarGeometry::captionOverhang);
    const QList<PlacedCaption> placed = placeCaptions(whole);
    return areWhole(placed, whole) ? placed : placeCaptions(wantedCaptions(measures, captionFrame));
}

// The number is just inside the end of the progress, or just behind it while the progress is too short.
QRectF labelRect(const ProgressBarMeasures& measures)
{
    const qreal end = measures.progress * measures.width;
    const qreal half = measures.labelWidth / 2;
    const qreal inside = end - labelInset;
    const qreal centre = inside >= half + labelMargin ? inside : end + labelMargin + half;
    return {centre - half, 0.0, measures.labelWidth, measures.barHeight};
}

} // namespace

ProgressBarGeometry progressBarGeometry(const ProgressBarMeasures& measures)
{
    ProgressBarGeometry geometry;
    geometry.bar = {0.0, 0.0, measures.width, measures.barHeight};
    geometry.prediction = {0.0, 0.0, measures.prediction * measures.width, measures.barHeight};
    geometry.progress = {0.0, 0.0, measures.progress * measures.width, measures.barHeight};
    geometry.label = labelRect(measures);
    geometry.height = measures.barHeight;

    const QList<PlacedCaption> captions = captionsFor(measures);
    const qreal lineBottom = measures.barHeight + measures.markerLineHeight;
    for (qsizetype i = 0; i < captions.size(); ++i) {
        const QRectF line(measures.markers.at(i).position * measures.width - measures.markerLineWidth / 2,
                          measures.barHeight, measures.markerLineWidth, measures.markerLineHeight);
        const auto& [row, span] = captions.at(i);
        const QRectF caption(span.left, lineBottom + firstRow + row * std::max(rowPitch, measures.captionHeight),
                             span.right - span.left, measures.captionHeight);
        geometry.markers.append({line, caption});
        geometry.height = std::max(geometry.height, caption.bottom());
    }
    return geometry;
}

QList<PlacedCaption> placeCaptions(const QList<Span>& wanted)
{
    std::vector<qsizetype> order(static_cast<std::size_t>(wanted.size()));
    std::iota(order.begin(), order.end(), 0);
    std::ranges::stable_sort(order, {}, [&](qsizetype i) { return wanted.at(i).left; });

    constexpr qreal nothing = std::numeric_limits<qreal>::lowest();
    std::array<qreal, 2> rowEnd{nothing, nothing};
    QList<PlacedCaption> placed(wanted.size());
    for (const qsizetype i : order) {
        const Span& span = wanted.at(i);
        const std::array<qreal, 2> free{std::max(span.left, rowEnd[0] + captionGap),
                                        std::max(span.left, rowEnd[1] + captionGap)};
        const std::size_t row = free[1] < free[0] ? 1 : 0;
        const qreal left = std::min(free.at(row), span.right);
        placed[i] = {static_cast<int>(row), {left, span.right}};
        rowEnd.at(row) = std::max(rowEnd.at(row), span.right);
    }
    return placed;
}
