// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QPointF>
#include <QRectF>

/// The layout of a progress bar, in device-independent pixels from the bar's top left corner. Captions may extend past
/// both ends of the bar.
struct ProgressBarGeometry {
    struct Marker {
        QRectF line;
        /// Narrower than the text if there is no room for all of it, empty if an equal marker shows the same text.
        QRectF caption;
    };

    QRectF bar;
    QRectF prediction;
    QRectF progress;
    QRectF label;
    QList<Marker> markers;
    /// Between captions that had to move aside and stand side by side.
    QList<QPointF> separators;
    /// From the top of the bar to the bottom of the lower row of captions, whatever captions there are.
    qreal height = 0.0;
};

struct ProgressBarMeasures {
    qreal width = 0.0;
    /// How far captions may extend past an end of the bar.
    qreal overhang = 0.0;
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
        QString caption;
        qreal captionWidth = 0.0;
        /// Others give way to its caption.
        bool isTarget = false;
    };
    QList<Marker> markers;
};

[[nodiscard]] ProgressBarGeometry progressBarGeometry(const ProgressBarMeasures& measures);
