// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QString>

/// A horizontal extent.
struct Span {
    qreal left = 0.0;
    qreal right = 0.0;

    [[nodiscard]] qreal width() const { return right - left; }
};

/// The text under a marker.
struct Caption {
    /// Where the marker stands.
    qreal centre = 0.0;
    QString text;
    qreal width = 0.0;
    /// Others give way to it.
    bool isTarget = false;
};

struct PlacedCaption {
    /// 0 is the upper row, 1 the lower.
    int row = 0;
    /// Narrower than the text if there is no room for all of it, empty if an equal caption of an equal marker shows it.
    Span span;
};

/// Places captions under their markers on two rows inside the room, at least `gap` apart. Captions that would overlap
/// in both rows move aside until they stand side by side. Results are in the order of the arguments.
[[nodiscard]] QList<PlacedCaption> placeCaptions(const QList<Caption>& captions, const Span& room, qreal gap);
