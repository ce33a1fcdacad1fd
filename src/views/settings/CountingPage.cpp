// SPDX-License-Identifier: GPL-3.0-or-later
#include "CountingPage.h"

#include "AbsenceKindsCard.h"
#include "CalendarFile.h"
#include "CalendarFileReview.h"
#include "Card.h"
#include "Clock.h"
#include "HolidayReview.h"
#include "Page.h"
#include "UsualWeekCard.h"
#include "VacationCard.h"
#include "WindowSize.h"
#include "WorkWeeksCard.h"

#include <QFileInfo>
#include <QTimer>
#include <QVBoxLayout>

CountingPage::CountingPage(CountingRecords& counting, const Clock& clock, ViewSettings& viewSettings, QWidget* parent)
    : QStackedWidget(parent)
    , m_counting(counting)
    , m_clock(clock)
    , m_usualWeek(new UsualWeekCard(counting))
    , m_daysOff(new DaysOffCard(counting, clock, viewSettings))
{
    m_cards = new Page(makeCards());
    addWidget(m_cards);
    connect(m_daysOff, &DaysOffCard::holidaysRequested, this, &CountingPage::reviewHolidays);
    connect(m_daysOff, &DaysOffCard::fileChosen, this, &CountingPage::reviewFile);
}

QWidget* CountingPage::makeCards()
{
    auto* cards = new QWidget;
    auto* column = new QVBoxLayout(cards);
    column->setContentsMargins(pageMargins);
    column->setSpacing(14);
    column->addWidget(Card::around(new VacationCard(m_counting)));
    column->addWidget(Card::around(new AbsenceKindsCard(m_counting)));
    column->addWidget(Card::around(new WorkWeeksCard(m_counting, m_clock)));
    column->addWidget(Card::around(m_usualWeek));
    column->addWidget(Card::around(m_daysOff));
    column->addStretch();
    return cards;
}

void CountingPage::showUsualWeek()
{
    if (currentWidget() != m_cards) // a review is not to be lost
        return;
    // Once it is laid out.
    QTimer::singleShot(0, m_cards, [this] {
        m_usualWeek->takeFocus();
        m_cards->reveal(*m_usualWeek);
    });
}

void CountingPage::reviewHolidays()
{
    show(new HolidayReview(m_counting, m_clock.now().date()), DaysOffCard::Origin::Holidays);
}

void CountingPage::reviewFile(const QString& path)
{
    try {
        const CalendarFileContents contents = readCalendarFile(path, m_clock.now().date());
        show(new CalendarFileReview(m_counting, QFileInfo(path).fileName(), contents, m_clock.now().date()),
             DaysOffCard::Origin::File);
    } catch (const FileError& error) {
        m_daysOff->showFileProblem(error.description());
    }
}

void CountingPage::show(DaysOffReview* review, DaysOffCard::Origin origin)
{
    auto* page = new Page(review);
    addWidget(page);
    setCurrentWidget(page);
    review->takeFocus();
    connect(review, &DaysOffReview::finished, this, [this, page, origin](const QString& message) {
        setCurrentIndex(0);
        page->deleteLater();
        m_daysOff->returnFrom(origin, message);
        // Once it is laid out with what was added.
        QTimer::singleShot(0, m_cards, [this] { m_cards->reveal(*m_daysOff); });
    });
}
