// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "DaysOffCard.h"

#include <QStackedWidget>

class DaysOffReview;
class Page;

/// The page of the settings about how days count, or the review of days off that may be added.
class CountingPage : public QStackedWidget {
    Q_OBJECT

public:
    CountingPage(CountingRecords& counting, const Clock& clock, QWidget* parent = nullptr);

private:
    [[nodiscard]] QWidget* makeCards();
    void reviewHolidays();
    void reviewFile(const QString& path);
    void show(DaysOffReview* review, DaysOffCard::Origin origin);

    CountingRecords& m_counting;
    const Clock& m_clock;
    DaysOffCard* m_daysOff;
    Page* m_cards;
};
