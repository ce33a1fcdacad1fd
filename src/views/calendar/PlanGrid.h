// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Day.h"

#include <QDate>
#include <QList>
#include <QWidget>

class PlanDayButton;
class QGridLayout;
class QLabel;

/// Small weeks of days, of which some can be pressed. The arrow keys move between these. It only displays: all of it is
/// given to it.
class PlanGrid : public QWidget {
    Q_OBJECT

public:
    struct Cell {
        QDate date;
        Day day;
        bool isDayOff = false;
        bool isToday = false;
        bool canBePressed = false;
        /// What a screen reader says, and the help shows.
        QString text;
    };
    struct Week {
        /// Seven.
        QList<Cell> cells;
        /// At the end of the row.
        qint64 freeDays = 0;
        /// The day above which the name of its month stands; invalid if none does.
        QDate named;
    };

    explicit PlanGrid(QWidget* parent = nullptr);

    void setWeeks(const QList<Week>& weeks);

    struct Column {
        QString name;
        int centre = 0;
    };
    /// The days of the week and the free days, as they are laid out.
    [[nodiscard]] QList<Column> columns() const;

Q_SIGNALS:
    void pressed(QDate date);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void build(const QList<Week>& weeks);
    void makeRoomForHeads();
    void addMonthName(QDate date, int row, int column);
    /// Lets Tab reach one day.
    void chooseTabStop();
    [[nodiscard]] PlanDayButton* nextTo(qsizetype place, qsizetype step) const;

    QGridLayout* m_grid;
    /// Seven a row.
    QList<PlanDayButton*> m_days;
    QList<QLabel*> m_freeDays;
};
