// SPDX-License-Identifier: GPL-3.0-or-later
#include "CalendarHeader.h"

#include "Fonts.h"
#include "Month.h"
#include "StatisticsTexts.h"

#include <QCoreApplication>
#include <QGridLayout>
#include <QLabel>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

struct HeaderTexts {
    Q_DECLARE_TR_FUNCTIONS(CalendarView)
};

QLabel* makeDimLabel(const QString& text, const QFont& base, int roomBelow)
{
    auto* label = new QLabel(text);
    label->setFont(fonts::body(base));
    label->setForegroundRole(QPalette::PlaceholderText);
    label->setAlignment(Qt::AlignCenter);
    label->setContentsMargins(0, 0, 0, roomBelow);
    return label;
}

} // namespace

QString calendarTitle(const Month& month, QDate today)
{
    if (month.year == today.year())
        return month.name;
    return HeaderTexts::tr("%1 %2", "month and year").arg(month.name.value(), QString::number(month.year));
}

std::array<QString, GridOrder::columns> weekdayLetters(Qt::DayOfWeek weekStart)
{
    std::array letters{
        HeaderTexts::tr("M", "Monday"),   HeaderTexts::tr("T", "Tuesday"), HeaderTexts::tr("W", "Wednesday"),
        HeaderTexts::tr("T", "Thursday"), HeaderTexts::tr("F", "Friday"),  HeaderTexts::tr("S", "Saturday"),
        HeaderTexts::tr("S", "Sunday"),
    };
    // Not that of std::ranges, which clang 14 cannot compile.
    std::rotate(letters.begin(), letters.begin() + weekStart - Qt::Monday, letters.end());
    return letters;
}

CalendarHeader::CalendarHeader(QGridLayout& grid)
    // Neither is ever empty: an empty line may be lower, which the layouts around a hidden grid would not forget.
    : m_name(new QLabel(u" "_s))
{
    const QFont base = grid.parentWidget()->font();
    m_name->setFont(fonts::title(base));
    m_name->setAlignment(Qt::AlignCenter);
    m_name->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred); // or a long name would move the cells
    m_workdays = makeDimLabel(workdaysText(0), base, 10);
    // Also over the weeks, so that it stays in the middle of the card.
    grid.addWidget(m_name, 0, 0, 1, GridOrder::columns + 1);
    grid.addWidget(m_workdays, 1, 0, 1, GridOrder::columns + 1);
    for (int column = 0; auto& letter : m_weekdays) {
        letter = makeDimLabel({}, base, 6);
        grid.addWidget(letter, 2, column++);
    }
}

void CalendarHeader::setName(const QString& name)
{
    m_name->setText(name);
}

void CalendarHeader::setWorkdays(qint64 workdays)
{
    m_workdays->setText(workdaysText(workdays));
}

void CalendarHeader::setWeekStart(Qt::DayOfWeek weekStart)
{
    const auto letters = weekdayLetters(weekStart);
    for (std::size_t column = 0; column < letters.size(); ++column)
        m_weekdays.at(column)->setText(letters.at(column));
}
