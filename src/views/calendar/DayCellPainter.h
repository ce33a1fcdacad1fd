// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "DayState.h"
#include "SelectedRun.h"

#include <QColor>
#include <QFontMetrics>
#include <QRect>
#include <QString>

class QPainter;
struct Theme;

/// What the cell of a day shows.
struct DayCellLook {
    QString number = {};
    QColor tint = {};
    DayState state = DayState::UNKNOWN;
    bool hasNote = false;
    bool isDayOff = false;
    bool isToday = false;
    bool isDown = false;
    bool isFocused = false;
    SelectedRun selected = {};
};

/// Paints the cell of a day: a coloured face with the number and the mark of the state, in a margin for the rings.
class DayCellPainter {
public:
    /// `area` is that of the whole cell.
    DayCellPainter(const QRect& area, const QFontMetrics& metrics, Qt::LayoutDirection direction);

    /// The least size of a cell.
    [[nodiscard]] static QSize sizeHint(const QFontMetrics& metrics);

    [[nodiscard]] QRect face() const { return m_face; }
    [[nodiscard]] QRect markArea() const;
    /// Where the dot is of a note.
    [[nodiscard]] QRect noteArea() const;
    /// Where the digits are.
    [[nodiscard]] QRect numberArea() const;

    void paint(QPainter& painter, const DayCellLook& look, const Theme& theme) const;

private:
    void paintSelected(QPainter& painter, const SelectedRun& run, const Theme& theme) const;

    QRect m_area;
    QRect m_face;
    QFontMetrics m_metrics;
    Qt::LayoutDirection m_direction;
};
