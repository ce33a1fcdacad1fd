// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "DayState.h"
#include "Symbol.h"

#include <QStringList>
#include <QWidget>

class QGridLayout;
class ViewSettings;
struct Day;

/// Explains the colours and gestures of the calendar, from the calendar's own tables.
class LegendView : public QWidget {
    Q_OBJECT

public:
    explicit LegendView(ViewSettings& settings, QWidget* parent = nullptr);

private:
    void addSwatch(QGridLayout& grid, const Day& day, const QString& text);
    void addDayOff(QGridLayout& grid);
    void addWeek(QGridLayout& grid);
    void addGesture(QGridLayout& grid, const QString& key, Symbol symbol, const QString& text, const QString& spoken);
    /// Adds the text of a row, with what a screen reader says of the whole row.
    void addText(QGridLayout& grid, int row, const QString& text, const QString& spoken);

    QStringList m_spoken;
};
