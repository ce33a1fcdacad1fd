// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QRectF>

/// The layout of a progress bar, in device-independent pixels from the bar's top left corner. Captions may extend past
/// both ends of the bar by `captionOverhang`.
struct ProgressBarGeometry {
    static constexpr qreal captionOverhang = 40.0;

    struct Marker {
        QRectF line;
        /// Narrower than the text if there is no room for all of it, empty if there is none at all.
        QRectF caption;
    };

    QRectF bar;
    QRectF prediction;
    QRectF progress;
    QRectF label;
    QList<Marker> markers;
    /// From the top of the bar to the bottom of the lowest caption.
    qreal height = 0.0;
};

struct ProgressBarMeasures {
    qreal width = 0.0;
    qreal barHeight = 0.0;
    /// Fractions of the width, 0 to 1.
    double progress = 0.0;
    double prediction = 0.0;
    qreal labelWidth = 0.0;
    qreal markerLineWidth = 0.0;
    qreal markerLineHeight = 0.0;
    qreal captionHeight = 0.0;

    struct Marker {
        double position = 0.0;
        qreal captionWidth = 0.0;
    };
    QList<Marker> markers;
};

[[nodiscard]] ProgressBarGeometry progressBarGeometry(const ProgressBarMeasures& measures);

/// A horizontal extent.
struct Span {
    qreal left = 0.0;
    qreal right = 0.0;

    bool operator==(const Span&) const = default;
};

struct PlacedCaption {
    /// 0 is the upper row, 1 the lower.
    int row = 0;
    /// The part of the wanted span that is free in the row; right == left if none is.
    Span span;

    bool operator==(const PlacedCaption&) const = default;
};

/// Places captions on two rows without overlaps, in the upper row where possible. A caption that fits in neither row is
/// cut in the row with more space. Results are in the order of the arguments.
[[nodiscard]] QList<PlacedCaption> placeCaptions(const QList<Span>& wanted);
