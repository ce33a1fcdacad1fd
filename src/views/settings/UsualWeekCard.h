// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "CountingCard.h"

class CountingRecords;
class Switch;
class WeekdayButtons;

/// The weekdays on which a person usually comes, and whether new months are planned by them.
class UsualWeekCard : public CountingCard {
    Q_OBJECT

public:
    explicit UsualWeekCard(CountingRecords& counting, QWidget* parent = nullptr);

    /// Also once the window becomes active.
    void takeFocus();

protected:
    bool event(QEvent* event) override;

private:
    void showWeek();
    void set();

    CountingRecords& m_counting;
    WeekdayButtons* m_weekdays;
    Switch* m_plansNewMonths;
    bool m_awaitsFocus = false;
};
