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
    /// The marker of the goal that is named above the bar.
    bool isTarget = false;
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
        /// What the number would be with the prediction, if that is more. Only assistive technology shows it.
        std::optional<double> predictedLabel;
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
        int barWidth = 375;
    };

    explicit MarkedProgressBar(QWidget* parent = nullptr);
    ~MarkedProgressBar() override;

    void setContents(const Contents& contents);
    [[nodiscard]] const Contents& contents() const { return m_contents; }
    [[nodiscard]] QColor colorOf(const ProgressMarker& marker) const;
    [[nodiscard]] QString tooltipText() const;
    /// The whole texts of the markers whose line or caption is there.
    [[nodiscard]] QString markerTextAt(QPoint place) const;
    /// The bar without the margins for captions at both ends.
    [[nodiscard]] QRect barRect() const;

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    bool event(QEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    [[nodiscard]] ProgressBarGeometry barGeometry() const;
    [[nodiscard]] QSize sizeWith(qreal overhang) const;
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
