// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "CalendarParts.h"
#include "RuleLine.h"

#include <QList>
#include <QProperty>

class Popover;
class QVBoxLayout;

/// How far the rules are met in a month, quarter or year: a line for each whose span belongs there. It follows
/// everything that changes them, and is hidden without lines.
class RuleLines : public QWidget {
    Q_OBJECT

public:
    enum class Place { Month, Quarter, Year };

    /// Those of a quarter are for quarters and years, those of a month for shorter spans. Those of a year are for all
    /// rules; of shorter spans they say in how many the rule was met. Nothing is counted while the tracker is not
    /// shown.
    RuleLines(const CalendarParts& parts, Place place, const QProperty<bool>& isTrackerShown,
              QWidget* parent = nullptr);

    /// An empty period has no lines, and nothing is counted.
    void setPeriod(DaySpan period);

Q_SIGNALS:
    /// A line was pressed, to plan its days.
    void popoverRequested(Popover* popover);

private:
    struct Shown {
        AttendanceRule rule;
        RuleLine::Contents line;
    };

    void refresh();
    void addLine();
    void plan(RuleLine* line);
    [[nodiscard]] bool isShown() const;
    [[nodiscard]] bool belongsHere(const AttendanceRule& rule) const;
    [[nodiscard]] QList<Shown> contents() const;
    [[nodiscard]] std::optional<RuleLine::Contents> contentsOf(const AttendanceRule& rule,
                                                               const CountedDays& days) const;
    [[nodiscard]] std::optional<RuleLine::Contents> summaryOf(const AttendanceRule& rule,
                                                              const CountedDays& days) const;
    /// Whether a line is about all spans in the period: those of a year, and the weeks of a month without today.
    [[nodiscard]] bool isSummarised(const AttendanceRule& rule) const;
    /// The day of the period whose span is shown.
    [[nodiscard]] QDate reference() const;
    [[nodiscard]] DaySpan daysOf(const AttendanceRule& rule) const;

    CalendarParts m_parts;
    Place m_place;
    const QProperty<bool>& m_isTrackerShown;
    DaySpan m_period;
    QVBoxLayout* m_column;
    QList<RuleLine*> m_lines;
    /// Those of the lines.
    QList<AttendanceRule> m_rules;
};
