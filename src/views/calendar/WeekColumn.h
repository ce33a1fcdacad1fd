// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "CalendarParts.h"
#include "GridOrder.h"
#include "RuleProgress.h"
#include "WeekLabel.h"

#include <QObject>
#include <QPointer>

#include <array>

class Month;
class QGridLayout;

/// The weeks of a month, each beside its row of days. The weeks at its ends count the days of the neighbouring months.
class WeekColumn : public QObject {
    Q_OBJECT

public:
    /// Adds a label to each row of days.
    WeekColumn(const CalendarParts& parts, QGridLayout& grid, int firstRow);
    /// Takes the labels away.
    ~WeekColumn() override;

    /// Shows the weeks of a month; none if the month is not stored, or its days cannot be read.
    void show(const Month& month, const GridOrder& order);

Q_SIGNALS:
    /// The figures of the weeks may have changed.
    void changed();

private:
    void hide();
    [[nodiscard]] WeekFigures figuresOf(const CountedDays& days, QDate rowStart) const;

    CalendarParts m_parts;
    std::array<QPointer<WeekLabel>, GridOrder::rows> m_labels;
    DaySpan m_span;
};
