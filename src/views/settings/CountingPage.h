// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "DaysOffCard.h"

#include <QStackedWidget>

class DaysOffReview;
class Page;
class UsualWeekCard;
class ViewSettings;

/// The page of the settings about how days count, or the review of days off that may be added.
class CountingPage : public QStackedWidget {
    Q_OBJECT

public:
    CountingPage(CountingRecords& counting, const Clock& clock, ViewSettings& viewSettings, QWidget* parent = nullptr);

    /// Scrolls to the card of the usual week and gives it the focus.
    void showUsualWeek();

private:
    [[nodiscard]] QWidget* makeCards();
    void reviewHolidays();
    void reviewFile(const QString& path);
    void show(DaysOffReview* review, DaysOffCard::Origin origin);

    CountingRecords& m_counting;
    const Clock& m_clock;
    UsualWeekCard* m_usualWeek;
    DaysOffCard* m_daysOff;
    Page* m_cards;
};
