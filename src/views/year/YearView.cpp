// SPDX-License-Identifier: GPL-3.0-or-later
#include "YearView.h"

#include "AppSettings.h"
#include "AttendanceStatistics.h"
#include "CalendarHeader.h"
#include "Card.h"
#include "Clock.h"
#include "CountingRecords.h"
#include "DayMarker.h"
#include "DayTexts.h"
#include "Follow.h"
#include "Fonts.h"
#include "LinkButton.h"
#include "Month.h"
#include "NavigationRow.h"
#include "RuleLines.h"
#include "StoredMonths.h"
#include "ViewSettings.h"
#include "YearFigures.h"
#include "YearMonths.h"

#include <QGridLayout>
#include <QLabel>
#include <QLocale>
#include <QVBoxLayout>

#include <utility>

namespace {

constexpr int yearInset = 12;

AttendanceStatistics figuresOf(const QList<const Month*>& months, const CalendarParts& parts)
{
    return attendanceStatistics(months, {}, parts.settings.vacationDaysCountAsInOffice, false,
                                parts.counting.counting());
}

MonthTile::Contents tileOf(const Month& month, const CalendarParts& parts, const DayTexts& texts, QDate today)
{
    const AttendanceStatistics figures = figuresOf({&month}, parts);
    const QDate first = month.dateOf(1);
    const Qt::DayOfWeek weekStart = parts.viewSettings.weekStart();
    const auto letters = weekdayLetters(weekStart);
    MonthTile::Contents tile{.first = first,
                             .name = QLocale().standaloneMonthName(first.month()),
                             .weekdays = {letters.begin(), letters.end()},
                             .firstColumn = GridOrder::columnOf(first.dayOfWeek(), weekStart),
                             .cells = {},
                             .inOffice = figures.inOffice,
                             .workdays = figures.workdays,
                             .today = first.year() == today.year() && first.month() == today.month() ? today.day() : 0};
    for (const Day& day : month.days.value()) {
        if (!day.isInMonth())
            continue;
        const QDate date = first.addDays(day.id - 1);
        tile.cells.append({texts.colored(day, date), texts.counting().dayOff(date) != nullptr});
    }
    return tile;
}

} // namespace

YearView::YearView(const CalendarParts& parts, QWidget* parent)
    : CalendarPage(parts, tr("Error loading year!"), parent)
    , m_monthsCard(new Card)
    , m_title(new QLabel)
    , m_months(new YearMonths(parts.counting, parts.viewSettings))
    , m_figuresCard(new Card)
    , m_figures(new YearFigures)
    , m_rules(new RuleLines(parts, RuleLines::Place::Year, parts.viewSettings.showQuarterStats))
{
    connect(m_rules, &RuleLines::popoverRequested, this, &YearView::popoverRequested);
    addMonths();
    addFigures();
    followChanges();
    const QDate today = parts.clock.today();
    showPeriod({today.year(), today.month()});
    m_months->setCurrent(today.month());
}

void YearView::addMonths()
{
    auto* navigation = new NavigationRow(tr("Last Year"), tr("Next Year"));
    connectNavigation(*navigation);
    m_title->setFont(fonts::title(font()));
    auto* column = new QGridLayout(m_monthsCard);
    column->setContentsMargins(yearInset, 16, yearInset, yearInset);
    column->setVerticalSpacing(8);
    column->addWidget(navigation, 0, 0);
    column->addWidget(m_title, 1, 0, Qt::AlignHCenter);
    // Beside the title, so that nothing moves when the link appears.
    column->addWidget(navigation->todayLink(), 1, 0, Qt::AlignVCenter | Qt::AlignRight);
    column->addWidget(m_months, 2, 0, Qt::AlignHCenter);
    contents().addWidget(m_monthsCard, 0, Qt::AlignHCenter);
    connect(m_months, &YearMonths::opened, this, [this](int number, Qt::FocusReason reason) {
        Q_EMIT monthOpened({month().year, number}, reason);
    });
    connect(m_months, &YearMonths::leftTo, this,
            [this](int months) { showDay(span().first.addMonths(months), Qt::TabFocusReason); });
}

void YearView::addFigures()
{
    auto* column = new QVBoxLayout(m_figuresCard);
    column->setContentsMargins(0, yearInset, 0, yearInset);
    column->setSpacing(4);
    column->addWidget(m_figures, 0, Qt::AlignHCenter);
    column->addWidget(m_rules);
    contents().addWidget(m_figuresCard, 0, Qt::AlignHCenter);
    const auto& isShown = parts().viewSettings.showQuarterStats;
    follow(isShown, m_figuresCard, [this, &isShown] { m_figuresCard->setVisible(isShown); });
}

void YearView::followChanges()
{
    const auto refresh = [this] { this->refresh(); };
    // After the change is saved.
    connect(&parts().marker, &DayMarker::changed, this, refresh, Qt::QueuedConnection);
    connect(&parts().counting, &CountingRecords::changed, this, refresh);
    connect(&parts().clock, &Clock::dayChanged, this, refresh);
    onChange(parts().settings.vacationDaysCountAsInOffice, this, refresh);
    onChange(parts().viewSettings.firstDayOfWeek, this, refresh);
}

void YearView::refresh()
{
    m_isStale = !isVisible();
    if (!m_isStale)
        showPeriod(month());
}

QString YearView::title() const
{
    return m_title->text();
}

void YearView::load()
{
    const auto stored = yearMonths(parts().marker.context(), month().year);
    QList<const Month*> months;
    for (const auto& each : stored)
        months.append(each.get());
    m_title->setText(QString::number(month().year));
    showMonths(months);
    showFigures(months);
    if (isVisible())
        showRules(span());
}

void YearView::showMonths(const QList<const Month*>& months)
{
    const DayTexts texts(parts().counting);
    QList<MonthTile::Contents> tiles;
    for (const Month* month : months)
        tiles.append(tileOf(*month, parts(), texts, today()));
    m_months->setContents(tiles);
}

void YearView::showFigures(const QList<const Month*>& months)
{
    QList<YearFigures::Row> rows;
    const auto add = [&](const QString& name, const QList<const Month*>& counted) {
        const AttendanceStatistics figures = figuresOf(counted, parts());
        rows.append({name, figures.inOffice, figures.workdays, shownAverage(figures)});
    };
    for (int quarter = 1; quarter <= 4; ++quarter)
        add(tr("Q%1", "a quarter of the year").arg(quarter), months.mid(3 * (quarter - 1), 3));
    add(QString::number(month().year), months);
    m_figures->setRows(rows);
}

void YearView::showRules(const DaySpan& days)
{
    // The lines follow all other changes by themselves.
    if (std::exchange(m_ruleDays, days) != days)
        m_rules->setPeriod(days);
}

DaySpan YearView::span() const
{
    return {QDate(month().year, 1, 1), QDate(month().year, 12, 31)};
}

std::optional<YearMonth> YearView::monthBefore() const
{
    return month().year > firstYear ? std::optional(YearMonth{month().year - 1, 1}) : std::nullopt;
}

std::optional<YearMonth> YearView::monthAfter() const
{
    return month().year < lastYear ? std::optional(YearMonth{month().year + 1, 1}) : std::nullopt;
}

void YearView::focusDay(QDate date, Qt::FocusReason reason)
{
    m_months->focusMonth(date.month(), reason);
}

void YearView::focusCurrent(Qt::FocusReason reason)
{
    m_months->focusCurrent(reason);
}

void YearView::showEvent(QShowEvent* event)
{
    CalendarPage::showEvent(event);
    if (std::exchange(m_isStale, false))
        showPeriod(month());
    showRules(span());
}

void YearView::hideEvent(QHideEvent* event)
{
    CalendarPage::hideEvent(event);
    if (!event->spontaneous())
        showRules({});
}

QSize YearView::minimumSizeHint() const
{
    const QMargins margins = layout()->contentsMargins();
    return {Card::leastContentWidth(font()) + margins.left() + margins.right(), QWidget::minimumSizeHint().height()};
}

void YearView::resizeEvent(QResizeEvent* event)
{
    CalendarPage::resizeEvent(event);
    const int room = layout()->contentsRect().width();
    m_months->fitInto(room - 2 * yearInset);
    const int width = qMax(qMin(room, Card::contentWidth(font())), m_months->width() + 2 * yearInset);
    m_monthsCard->setFixedWidth(width);
    m_figuresCard->setFixedWidth(width);
}
