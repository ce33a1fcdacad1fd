// SPDX-License-Identifier: GPL-3.0-or-later
#include "PlanPopover.h"

#include "Accessibility.h"
#include "AppSettings.h"
#include "Button.h"
#include "ButtonRow.h"
#include "Clock.h"
#include "CountingRecords.h"
#include "DayMarker.h"
#include "DayTexts.h"
#include "FocusOrder.h"
#include "Fonts.h"
#include "Labels.h"
#include "MarkedTextLabel.h"
#include "Page.h"
#include "PlanGrid.h"
#include "PlanHead.h"
#include "PlanTexts.h"
#include "ProgressWidgetView.h"
#include "RuleLine.h"
#include "StoreError.h"
#include "StoredDays.h"
#include "ViewSettings.h"

#include <QHBoxLayout>
#include <QLocale>
#include <QLoggingCategory>
#include <QScreen>
#include <QVBoxLayout>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

Q_LOGGING_CATEGORY(logPlan, "pellory.calendar", QtInfoMsg)

constexpr int linesOfPace = 2;
constexpr int paceGap = 4;
// In the usual font, with which they grow. Half a week shows that there are more.
constexpr int highestGrid = 235;
constexpr int leastGrid = 76;
constexpr int roomForScrollBar = 12;

} // namespace

PlanPopover::PlanPopover(const CalendarParts& parts, PlanSubject subject, QWidget* anchor)
    : Popover(anchor, Side::Below)
    , m_parts(parts)
    , m_subject(std::move(subject))
    , m_stored({}, {}, {}, false)
    , m_lineColumn(new QVBoxLayout)
    , m_pace(new MarkedTextLabel)
    , m_problem(labels::error(tr("Nothing was planned, because the data file cannot be read. Try again, or restart "
                                 "Pellory.")))
{
    m_lineColumn->setSpacing(0);
    column().setSpacing(8);
    addTitle();
    column().addLayout(m_lineColumn);
    addPace();
    const bool isToCome = m_subject.span.last >= m_parts.clock.today();
    if (isToCome && m_subject.countsPlanned)
        addGrid();
    column().addWidget(m_problem);
    m_problem->hide();
    refresh();
    m_pace->setVisible(isToCome && (m_subject.countsPlanned || !m_pace->text().isEmpty()));
    if (m_grid != nullptr)
        limitGrid();
    // After the change is saved.
    connect(&parts.marker, &DayMarker::changed, this, &PlanPopover::refresh, Qt::QueuedConnection);
    connect(&parts.counting, &CountingRecords::changed, this, &PlanPopover::refresh);
}

void PlanPopover::addTitle()
{
    const QDate last = m_subject.span.last;
    //: A date, in the format of QLocale::toString(). Put words in single quotes: 'the' d.
    const QString date = QLocale().toString(last, tr("d MMMM yyyy"));
    auto* title =
        labels::strong(last < m_parts.clock.today() ? tr("Ended on %1").arg(date) : tr("Plan until %1").arg(date));
    title->setContentsMargins(SpokenGroup::ringRoom, 0, SpokenGroup::ringRoom, 0);
    setAccessibleName(title->text());
    column().addWidget(title);
}

void PlanPopover::addPace()
{
    // The height is the same whatever the text is, so that the days below stay where they are.
    m_pace->setObjectName("pace"_L1);
    m_pace->setFont(fonts::body(font()));
    m_pace->setFixedWidth(ProgressWidgetView::columnWidth(font()));
    m_pace->setLineCount(linesOfPace);
    auto* belowLine = new QHBoxLayout;
    belowLine->setContentsMargins(SpokenGroup::ringRoom, paceGap, SpokenGroup::ringRoom, 0);
    belowLine->addWidget(m_pace);
    belowLine->addStretch();
    m_lineColumn->addLayout(belowLine);
}

void PlanPopover::addGrid()
{
    m_grid = new PlanGrid;
    connect(m_grid, &PlanGrid::pressed, this, &PlanPopover::tryDay);
    m_weeks = new Page(m_grid);
    m_grid->setAutoFillBackground(false); // which the page has turned on
    m_weeks->viewport()->setAutoFillBackground(false);
    auto* days = new QVBoxLayout;
    days->setSpacing(0);
    m_head = new PlanHead(*m_grid);
    days->addWidget(m_head);
    days->addWidget(m_weeks);
    column().addLayout(days);
    addButtons();
}

void PlanPopover::addButtons()
{
    auto* buttons = new ButtonRow(Qt::AlignRight);
    if (!m_parts.counting.usualWeek().weekdays.isEmpty()) {
        m_fill = new Button(tr("Fill with My Usual Days"));
        m_fill->setObjectName("fill"_L1);
        connect(m_fill, &QAbstractButton::clicked, this, &PlanPopover::fillUsualWeek);
        buttons->add(m_fill);
    }
    m_apply = new Button(tr("Apply"));
    m_apply->setObjectName("apply"_L1);
    m_apply->setProminent(true);
    connect(m_apply, &QAbstractButton::clicked, this, &PlanPopover::apply);
    buttons->add(m_apply);
    column().addWidget(buttons);
}

// More weeks than fit on the screen, or than are easy to look through, are scrolled.
void PlanPopover::limitGrid()
{
    const int whole = m_grid->sizeHint().height();
    m_weeks->setFixedHeight(whole);
    const int others = sizeHint().height() - whole;
    const int room = parentWidget()->screen()->availableSize().height() - others;
    const int height = qMin(room, fonts::grown(highestGrid, font()));
    if (whole <= height)
        return;
    m_grid->setContentsMargins(isLeftToRight() ? 0 : roomForScrollBar, 0, isLeftToRight() ? roomForScrollBar : 0, 0);
    m_weeks->setFixedHeight(qMax(height, fonts::grown(leastGrid, font())));
}

bool PlanPopover::focusNextPrevChild(bool next)
{
    return moveFocus(*this, next);
}

CountedDays PlanPopover::daysWith(const TriedStates& tried) const
{
    return withTried(m_stored, tried, m_parts.counting.counting(), m_parts.settings.vacationDaysCountAsInOffice);
}

void PlanPopover::refresh()
{
    try {
        m_stored = countedDays(m_parts.marker.context(), m_subject.days, m_parts.counting.counting(),
                               m_parts.settings.vacationDaysCountAsInOffice);
    } catch (const StoreError& error) {
        qCWarning(logPlan, "The days of a plan cannot be read: %s", error.what());
        m_problem->show();
        return;
    }
    const QDate today = m_parts.clock.today();
    const CountedDays days = daysWith(m_tried);
    const QList<PlanSubject::Line> lines = m_subject.lines(days);
    const QList<PlanWeek> weeks =
        planWeeks(days, m_subject.span, m_subject.weekdays, today, m_parts.viewSettings.weekStart());
    showLines(lines);
    if (!lines.isEmpty()) {
        const PlanPace pace = planPace(lines.first().progress, weeks);
        m_pace->setMarkedText(planText(lines.first().rule, lines.first().progress, pace, today));
    }
    if (m_grid != nullptr)
        showWeeks(weeks, days);
}

void PlanPopover::showLines(const QList<PlanSubject::Line>& lines)
{
    while (m_lines.size() < lines.size()) {
        auto* line = new RuleLine;
        const bool isFirst = m_lines.isEmpty();
        // The pace is that of the first one, and below it.
        m_lineColumn->insertWidget(isFirst ? 0 : -1, line);
        // Screen readers read in this order.
        if (QWidget* next = isFirst ? static_cast<QWidget*>(m_pace) : m_head)
            line->stackUnder(next);
        m_lines.append(line);
    }
    for (qsizetype i = 0; i < m_lines.size(); ++i) {
        m_lines.at(i)->setVisible(i < lines.size());
        if (i < lines.size())
            m_lines.at(i)->setContents(
                RuleLine::contentsOf(lines.at(i).rule, lines.at(i).progress, m_parts.clock.today()));
        // A shorter text leaves the days where they are.
        m_lines.at(i)->setMinimumHeight(qMax(m_lines.at(i)->minimumHeight(), m_lines.at(i)->sizeHint().height()));
    }
}

void PlanPopover::showWeeks(const QList<PlanWeek>& weeks, const CountedDays& days)
{
    const DayTexts texts(m_parts.counting);
    const QDate first = weeks.isEmpty() ? QDate() : std::max(weeks.first().days.first, m_subject.span.first);
    const bool namesMonths = first.month() != m_subject.span.last.month() || first.year() != m_subject.span.last.year();
    QList<PlanGrid::Week> shown;
    for (const PlanWeek& week : weeks) {
        PlanGrid::Week row{.cells = {}, .freeDays = week.freeDays, .named = {}};
        for (QDate date = week.days.first; date <= week.days.last; date = date.addDays(1)) {
            const bool isIn = m_subject.span.contains(date);
            const DayState state = isIn ? days.in({date, date}).front().state : DayState::UNKNOWN;
            const Day day{.id = date.day(), .state = state, .isWorkday = isIn && texts.counting().isWorkday(date)};
            if (namesMonths && isIn && (date.day() == 1 || (shown.isEmpty() && !row.named.isValid())))
                row.named = date;
            row.cells.append({.date = date,
                              .day = day,
                              .isDayOff = texts.counting().dayOff(date) != nullptr,
                              .isToday = date == m_parts.clock.today(),
                              .canBePressed = canBeTried(date),
                              .text = texts.spoken(date, state)});
        }
        shown.append(row);
    }
    m_grid->setWeeks(shown);
    m_apply->setEnabled(std::any_of(m_tried.keyValueBegin(), m_tried.keyValueEnd(),
                                    [this](const auto& tried) { return storedState(tried.first) != tried.second; }));
    if (m_fill != nullptr) {
        const bool isLeft = !usualDaysLeft().isEmpty();
        m_fill->setEnabled(isLeft);
        m_fill->setToolTip(isLeft ? QString() : tr("None of your usual days is left to plan"));
    }
}

DayState PlanPopover::storedState(QDate date) const
{
    return m_stored.in({date, date}).front().state;
}

bool PlanPopover::canBeTried(QDate date) const
{
    return date >= m_parts.clock.today() && m_subject.span.contains(date) && m_subject.weekdays.contains(date) &&
           canBePlanned(m_stored.in({date, date}).front());
}

void PlanPopover::tryDay(QDate date)
{
    const bool isPlanned = m_tried.value(date, storedState(date)) == DayState::WILL_BE_IN_OFFICE;
    const DayState state = isPlanned ? DayState::UNKNOWN : DayState::WILL_BE_IN_OFFICE;
    m_tried[date] = state;
    refresh();
    announce(*this, DayTexts(m_parts.counting).spoken(date, state) + u". "_s + m_pace->text());
}

QList<QDate> PlanPopover::usualDaysLeft() const
{
    const Weekdays usual = m_parts.counting.usualWeek().weekdays;
    QList<QDate> dates = daysToPlan(daysWith(m_tried), usual, m_parts.clock.today());
    dates.removeIf([this](QDate date) { return !canBeTried(date); });
    return dates;
}

void PlanPopover::fillUsualWeek()
{
    for (const QDate date : usualDaysLeft())
        m_tried[date] = DayState::WILL_BE_IN_OFFICE;
    refresh();
    announce(*this, m_pace->text());
}

void PlanPopover::apply()
{
    QList<DayMark> marks;
    for (const auto& [date, state] : m_tried.asKeyValueRange()) {
        if (canBeTried(date) && storedState(date) != state)
            marks.append({date, state});
    }
    std::ranges::sort(marks, {}, &DayMark::date);
    try {
        m_parts.marker.mark(marks, ChangedBy::Pattern);
        close();
    } catch (const StoreError& error) {
        qCWarning(logPlan, "A plan cannot be stored: %s", error.what());
        m_problem->show();
        fitToContents();
    }
}
