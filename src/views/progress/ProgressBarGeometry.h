// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QRectF>

/// Where things stand on a progress bar. Everything is measured from the left end of the bar, in device-independent
/// pixels; captions may reach past the bar's ends by `captionOverhang`.
struct ProgressBarGeometry {
    static constexpr qreal captionOverhang = 40.0;

    struct Marker {
        QRectF line;
        /// Narrower than the caption's text where there is no room for all of it; empty where there is none at all.
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

/// A stretch of one line, from left to right.
struct Span {
    qreal left = 0.0;
    qreal right = 0.0;

    bool operator==(const Span&) const = default;
};

struct PlacedCaption {
    /// 0 is the upper row, 1 the lower.
    int row = 0;
    /// The part of the wanted stretch that no other caption of the row takes; right = left where nothing is left of it.
    Span span;

    bool operator==(const PlacedCaption&) const = default;
};

/// Puts captions on two rows, so that those that would overlap go to different rows. The upper row is taken where there
/// is room. A caption that fits in neither row gets what is left of the row that leaves more. Results are in the order
/// of the arguments.
[[nodiscard]] QList<PlacedCaption> placeCaptions(const QList<Span>& wanted);
