// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "CountingCard.h"
#include "WorkTime.h"

class Clock;
class CountingRecords;
class DateField;
class IconButton;
class WeekdayButtons;

/// The weekdays that a person works, and since when.
class WorkWeeksCard : public CountingCard {
    Q_OBJECT

public:
    WorkWeeksCard(CountingRecords& counting, const Clock& clock, QWidget* parent = nullptr);

private:
    struct Row {
        QWidget* whole;
        QLabel* text;
        IconButton* remove;
    };

    [[nodiscard]] static QString weekText(const WorkWeek& week);
    void addEntry();
    void showWeeks();
    [[nodiscard]] Row makeRow();
    void set();
    void remove(qsizetype place);

    CountingRecords& m_counting;
    WeekdayButtons* m_weekdays;
    DateField* m_from;
    QVBoxLayout* m_list;
    QLabel* m_before;
    /// The latest first, as the rows.
    QList<WorkWeek> m_weeks;
    QList<Row> m_rows;
};
