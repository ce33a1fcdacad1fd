// SPDX-License-Identifier: GPL-3.0-or-later
#include "WorkWeeksCard.h"

#include "Accessibility.h"
#include "Button.h"
#include "Clock.h"
#include "CountingRecords.h"
#include "CountingTexts.h"
#include "DateField.h"
#include "IconButton.h"
#include "Labels.h"
#include "WeekdayButtons.h"

#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

WorkWeeksCard::WorkWeeksCard(CountingRecords& counting, const Clock& clock, QWidget* parent)
    : CountingCard(
          tr("Own Workdays"),
          tr("From the date on, only the days that you choose are workdays. Days before it count as they did."), parent)
    , m_counting(counting)
    , m_weekdays(new WeekdayButtons)
    , m_from(new DateField(tr("Workdays from")))
    , m_list(new QVBoxLayout)
    , m_before(labels::dim({}))
{
    const QDate today = clock.now().date();
    m_from->setDate({today.year(), today.month(), 1});
    addEntry();
    addProblemLine();
    m_list->setSpacing(2);
    m_list->addWidget(m_before);
    column().addLayout(m_list);
    showWeeks();
    m_weekdays->setWeekdays(m_weeks.isEmpty() ? Weekdays::mondayToFriday() : m_weeks.first().weekdays);
    connect(&counting, &CountingRecords::changed, this, &WorkWeeksCard::showWeeks);
}

void WorkWeeksCard::addEntry()
{
    auto* question = labels::text(tr("I work on"));
    column().addWidget(question);
    m_weekdays->setObjectName("weekdays"_L1);
    m_weekdays->setAccessibleName(question->text());
    column().addWidget(m_weekdays);
    m_from->setObjectName("workdaysFrom"_L1);
    auto* button = new Button(tr("Set Workdays"));
    button->setObjectName("setWorkdays"_L1);
    auto* row = new QHBoxLayout;
    row->setSpacing(8);
    row->addWidget(labels::singleLine(labels::text(tr("From", "date"))));
    row->addWidget(m_from);
    row->addWidget(button);
    row->addStretch();
    column().addLayout(row);
    connect(button, &QAbstractButton::clicked, this, &WorkWeeksCard::set);
    connect(m_from, &QLineEdit::returnPressed, this, &WorkWeeksCard::set);
    connect(m_from, &QLineEdit::textChanged, this, [this] { showProblem({}); });
    connect(m_weekdays, &WeekdayButtons::chosen, this, [this] { showProblem({}); });
}

QString WorkWeeksCard::weekText(const WorkWeek& week)
{
    return tr("%1 from %2", "days of the week, date")
        .arg(counting_texts::weekdays(week.weekdays), counting_texts::date(week.from));
}

void WorkWeeksCard::showWeeks()
{
    m_weeks = m_counting.workWeeks();
    std::ranges::reverse(m_weeks);
    while (m_rows.size() < m_weeks.size())
        m_rows.append(makeRow());
    while (m_rows.size() > m_weeks.size()) {
        QWidget* last = m_rows.takeLast().whole;
        last->hide();
        last->deleteLater();
    }
    for (qsizetype i = 0; i < m_weeks.size(); ++i) {
        const WorkWeek& week = m_weeks.at(i);
        const QString text = weekText(week);
        m_rows.at(i).text->setText(text);
        m_rows.at(i).remove->setHelp(tr("Remove %1", "workdays").arg(text));
    }
    m_before->setText(m_weeks.isEmpty() ? tr("Monday to Friday are workdays.") : tr("Monday to Friday before that"));
}

WorkWeeksCard::Row WorkWeeksCard::makeRow()
{
    const Row row{new QWidget, labels::text({}), new IconButton(Symbol::Cross, {})};
    row.remove->setQuiet();
    auto* line = new QHBoxLayout(row.whole);
    line->setContentsMargins({});
    line->addWidget(row.text, 1);
    line->addWidget(row.remove);
    m_list->insertWidget(static_cast<int>(m_rows.size()), row.whole);
    connect(row.remove, &QAbstractButton::clicked, this, [this, place = m_rows.size()] { remove(place); });
    return row;
}

void WorkWeeksCard::set()
{
    const auto from = m_from->date();
    if (m_weekdays->weekdays().isEmpty())
        showProblem(tr("Choose at least one day of the week."));
    else if (!from)
        showProblem(m_from->refusal());
    else if (report(m_counting.setWorkWeek({*from, m_weekdays->weekdays()})))
        announce(*this, weekText({*from, m_weekdays->weekdays()}));
}

void WorkWeeksCard::remove(qsizetype place)
{
    const bool hadFocus = m_rows.at(place).remove->hasFocus();
    if (!report(m_counting.removeWorkWeek(m_weeks.at(place).from)) || !hadFocus)
        return;
    // Left alone, the focus would move on to a control that does something else.
    QWidget* next = m_from;
    if (!m_rows.isEmpty())
        next = m_rows.at(std::min(place, m_rows.size() - 1)).remove;
    next->setFocus(Qt::TabFocusReason);
}
