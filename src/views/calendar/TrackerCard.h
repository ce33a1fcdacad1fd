// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "CalendarParts.h"
#include "Card.h"
#include "RuleProgress.h"
#include "StatisticsTexts.h"

#include <QProperty>

#include <memory>

class Month;
class NavigationRow;
class Popover;
class ProgressWidgetView;
class RuleLines;
class QVBoxLayout;

/// A card with the progress tracker of a period, while that is switched on.
class TrackerCard : public Card {
    Q_OBJECT

public:
    TrackerCard(const CalendarParts& parts, PeriodWord period, const QProperty<bool>& isTrackerShown,
                QWidget* parent = nullptr);

    void setMonths(const QList<std::shared_ptr<Month>>& months);
    /// Shows how far the rules are met, below all else. The lines are built when there is a rule.
    void addRules();
    /// Adds a line that begins and ends where the tracker does.
    void addAboveTracker(QWidget* widget);

Q_SIGNALS:
    /// The line of the goal or of a rule was pressed, to plan its days.
    void popoverRequested(Popover* popover);

protected:
    /// Adds what names the period above the tracker, and the navigation, if there is one, above that.
    void addHeader(NavigationRow* navigation, QWidget* title);
    void addBelowTracker(QWidget* widget);

private:
    void buildRules();
    void plan();

    CalendarParts m_parts;
    PeriodWord m_period;
    const QProperty<bool>& m_isTrackerShown;
    QVBoxLayout* m_column;
    ProgressWidgetView* m_tracker;
    bool m_hasRules = false;
    RuleLines* m_rules = nullptr;
    QList<std::shared_ptr<Month>> m_months;
    DaySpan m_days;
};
