// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ProgressBarGeometry.h"

#include <QColor>
#include <QPointer>
#include <QTimer>
#include <QWidget>

#include <optional>

class HoverLabel;

struct ProgressMarker {
    /// A fraction of the bar's width, 0 to 1.
    double position = 0.0;
    QString description;
};

/// A horizontal bar with two fills, the progress reached and the progress predicted, and markers with captions below.
/// It only displays: every number is given to it.
class MarkedProgressBar : public QWidget {
    Q_OBJECT

public:
    struct Contents {
        /// Fractions of the bar's width, 0 to 1.
        double progress = 0.0;
        double progressPrediction = 0.0;
        /// The number on the bar and in the tooltip. Without it the tooltip shows the progress.
        std::optional<double> label;
        QList<ProgressMarker> markers;
        qreal barHeight = 24.0;
        QColor progressColor;
        QColor progressPredictionColor;
        QColor backgroundColor;
        /// Colours of line and caption: of markers that are reached, predicted to be reached, and all others.
        QColor reachedMarkerColor;
        QColor predictedMarkerColor;
        QColor markerColor;
        qreal markerLineWidth = 2.0;
        qreal markerLineHeight = 9.0;
        QFont markerFont;
    };

    explicit MarkedProgressBar(QWidget* parent = nullptr);
    ~MarkedProgressBar() override;

    void setContents(const Contents& contents);
    [[nodiscard]] const Contents& contents() const { return m_contents; }
    [[nodiscard]] QColor colorOf(const ProgressMarker& marker) const;
    [[nodiscard]] QString tooltipText() const;
    /// The bar without the margins for captions at both ends.
    [[nodiscard]] QRect barRect() const;

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void leaveEvent(QEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    [[nodiscard]] ProgressBarGeometry geometryFor(qreal barWidth) const;
    [[nodiscard]] QString accessibleText() const;
    void setHovered(bool inside);
    void paintBar(QPainter& painter, const ProgressBarGeometry& geometry) const;
    void paintLabel(QPainter& painter, const ProgressBarGeometry& geometry) const;
    void paintMarkers(QPainter& painter, const ProgressBarGeometry& geometry) const;

    Contents m_contents;
    QTimer m_hoverDelay;
    QPointer<HoverLabel> m_tooltip;
    bool m_hovering = false;
};
