// SPDX-License-Identifier: GPL-3.0-or-later
#include "RuleLines.h"

#include "AppSettings.h"
#include "Clock.h"
#include "CountingRecords.h"
#include "DayMarker.h"
#include "Follow.h"
#include "PlanPopover.h"
#include "RuleTexts.h"
#include "StoreError.h"
#include "StoredDays.h"
#include "ViewSettings.h"

#include <QVBoxLayout>

#include <algorithm>

namespace {

using Verdict = RuleProgress::Verdict;

void leaveOutPlanned(RuleProgress& progress)
{
    progress.planned = 0;
    if (progress.verdict == Verdict::KeptWithPlanned)
        progress.verdict = Verdict::Open;
}

} // namespace

RuleLines::RuleLines(const CalendarParts& parts, Place place, const QProperty<bool>& isTrackerShown, QWidget* parent)
    : QWidget(parent)
    , m_parts(parts)
    , m_place(place)
    , m_isTrackerShown(isTrackerShown)
    , m_column(new QVBoxLayout(this))
{
    m_column->setContentsMargins({});
    m_column->setSpacing(0);
    const auto refresh = [this] { this->refresh(); };
    // After the change is saved.
    connect(&parts.marker, &DayMarker::changed, this, refresh, Qt::QueuedConnection);
    connect(&parts.counting, &CountingRecords::changed, this, refresh);
    connect(&parts.clock, &Clock::dayChanged, this, refresh);
    onChange(parts.settings.vacationDaysCountAsInOffice, this, refresh);
    onChange(parts.viewSettings.firstDayOfWeek, this, refresh);
    onChange(parts.viewSettings.showProgressBars, this, refresh);
    onChange(parts.viewSettings.showWillBeInOfficeStats, this, refresh);
    onChange(isTrackerShown, this, refresh);
}

void RuleLines::setPeriod(DaySpan period)
{
    m_period = period;
    refresh();
}

void RuleLines::refresh()
{
    const QList<Shown> shown = isShown() ? contents() : QList<Shown>();
    while (m_lines.size() < shown.size())
        addLine();
    while (m_lines.size() > shown.size())
        delete m_lines.takeLast();
    m_rules.clear();
    for (qsizetype i = 0; i < shown.size(); ++i) {
        const AttendanceRule& rule = shown.at(i).rule;
        m_rules.append(rule);
        m_lines.at(i)->setContents(shown.at(i).line);
        m_lines.at(i)->setPressable(isSummarised(rule) ? nullptr : m_lines.at(i));
    }
    setVisible(!shown.isEmpty());
}

void RuleLines::addLine()
{
    auto* line = new RuleLine;
    m_lines.append(line);
    m_column->addWidget(line, 0, Qt::AlignHCenter);
    connect(line, &RuleLine::pressed, this, [this, line] { plan(line); });
}

void RuleLines::plan(RuleLine* line)
{
    const AttendanceRule& rule = m_rules.at(m_lines.indexOf(line));
    Q_EMIT popoverRequested(new PlanPopover(m_parts, PlanSubject::ofRule(m_parts, rule, reference()), line));
}

bool RuleLines::isShown() const
{
    return m_isTrackerShown && m_parts.viewSettings.showProgressBars && m_period.first.isValid();
}

bool RuleLines::belongsHere(const AttendanceRule& rule) const
{
    const bool isLong = rule.span == AttendanceRule::Span::Quarter || rule.span == AttendanceRule::Span::Year;
    return m_place == Place::Year || isLong == (m_place == Place::Quarter);
}

QList<RuleLines::Shown> RuleLines::contents() const
{
    QList<AttendanceRule> rules = m_parts.counting.rules();
    rules.removeIf([this](const AttendanceRule& rule) { return !belongsHere(rule); });
    if (rules.isEmpty())
        return {};
    DaySpan span = daysOf(rules.first());
    for (const AttendanceRule& rule : rules) {
        const DaySpan days = daysOf(rule);
        span = {std::min(span.first, days.first), std::max(span.last, days.last)};
    }
    QList<Shown> shown;
    try {
        const CountedDays days = countedDays(m_parts.marker.context(), span, m_parts.counting.counting(),
                                             m_parts.settings.vacationDaysCountAsInOffice);
        for (const AttendanceRule& rule : rules) {
            if (const auto line = contentsOf(rule, days))
                shown.append({rule, *line});
        }
    } catch (const StoreError&) {
        // The page says that it cannot load the month, and tries again.
        return {};
    }
    return shown;
}

std::optional<RuleLine::Contents> RuleLines::contentsOf(const AttendanceRule& rule, const CountedDays& days) const
{
    const QDate today = m_parts.clock.today();
    if (isSummarised(rule))
        return summaryOf(rule, days);
    auto progress = ruleProgress(rule, days, reference(), today, m_parts.viewSettings.weekStart());
    if (!progress)
        return {};
    if (!m_parts.viewSettings.showWillBeInOfficeStats)
        leaveOutPlanned(*progress);
    return RuleLine::contentsOf(rule, *progress, today);
}

std::optional<RuleLine::Contents> RuleLines::summaryOf(const AttendanceRule& rule, const CountedDays& days) const
{
    const SpansKept spans = spansKept(rule, days, m_period, m_parts.clock.today(), m_parts.viewSettings.weekStart());
    if (spans.spans == 0)
        return {};
    return RuleLine::Contents{.name = rule.name,
                              .count = {},
                              .outlook = spansKeptText(rule, spans),
                              .verdict = spans.kept == spans.spans ? Verdict::Kept : Verdict::Broken,
                              .progress = static_cast<double>(spans.kept) / static_cast<double>(spans.spans)};
}

bool RuleLines::isSummarised(const AttendanceRule& rule) const
{
    if (m_place == Place::Year)
        return rule.span != AttendanceRule::Span::Year;
    const bool isShort = rule.span == AttendanceRule::Span::Week || rule.span == AttendanceRule::Span::TwoWeeks;
    return isShort && m_period.last < m_parts.clock.today();
}

QDate RuleLines::reference() const
{
    return std::clamp(m_parts.clock.today(), m_period.first, m_period.last);
}

DaySpan RuleLines::daysOf(const AttendanceRule& rule) const
{
    const Qt::DayOfWeek weekStart = m_parts.viewSettings.weekStart();
    return isSummarised(rule) ? daysOfSpansKept(rule, m_period, weekStart) : spanOf(rule, reference(), weekStart);
}
