// SPDX-License-Identifier: GPL-3.0-or-later
#include "GoalsPage.h"

#include "AppSettings.h"
#include "Card.h"
#include "Clock.h"
#include "CountingRecords.h"
#include "DaysPerWeekGoalView.h"
#include "Page.h"
#include "RuleEditor.h"
#include "RulePresets.h"
#include "RuleTexts.h"
#include "RulesView.h"
#include "StoreError.h"
#include "StoredDays.h"
#include "ViewSettings.h"
#include "WindowSize.h"

#include <QLocale>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr int cardGap = 14;

// "November 2026", or the first and the last day.
QString periodText(DaySpan span)
{
    const bool isMonth = span.first.day() == 1 && span.last == span.first.addMonths(1).addDays(-1);
    const auto written = [](QDate date) { return QLocale().toString(date, GoalsPage::tr("d MMMM yyyy")); };
    if (isMonth)
        return GoalsPage::tr("%1 %2", "month, year")
            .arg(QLocale().standaloneMonthName(span.first.month()), QString::number(span.first.year()));
    return GoalsPage::tr("%1 to %2", "dates").arg(written(span.first), written(span.last));
}

} // namespace

GoalsPage::GoalsPage(AppSettings& settings, CountingRecords& counting, ModelContext& context, const Clock& clock,
                     const ViewSettings& viewSettings, QWidget* parent)
    : QStackedWidget(parent)
    , m_settings(settings)
    , m_counting(counting)
    , m_context(context)
    , m_clock(clock)
    , m_viewSettings(viewSettings)
    , m_rules(new RulesView(counting, clock))
{
    auto* lists = new QWidget;
    auto* column = new QVBoxLayout(lists);
    column->setContentsMargins(pageMargins);
    column->setSpacing(cardGap);
    column->addWidget(Card::around(new DaysPerWeekGoalView(settings, true)));
    column->addWidget(Card::around(m_rules));
    column->addStretch();
    addWidget(new Page(lists));
    connect(m_rules, &RulesView::editRequested, this, &GoalsPage::showEditor);
}

void GoalsPage::showEditor(const RulePreset& start)
{
    auto* editor = new RuleEditor(m_counting, start, m_clock.today(),
                                  [this](const AttendanceRule& rule) { return meaningOf(rule); });
    m_editor = makeCardPage(editor);
    addWidget(m_editor);
    setCurrentWidget(m_editor);
    editor->focusFirst();
    connect(editor, &RuleEditor::finished, this, [this, id = start.rule.id] { showLists(id); });
}

void GoalsPage::showLists(const QUuid& edited)
{
    setCurrentIndex(0);
    std::exchange(m_editor, nullptr)->deleteLater();
    m_rules->focusRule(edited);
}

QString GoalsPage::meaningOf(const AttendanceRule& rule) const
{
    const QDate today = m_clock.today();
    const QDate reference = std::min(std::max(today, rule.from.value_or(today)), rule.until.value_or(today));
    const Qt::DayOfWeek weekStart = m_viewSettings.weekStart();
    try {
        const CountedDays days = countedDays(m_context, spanOf(rule, reference, weekStart), m_counting.counting(),
                                             m_settings.vacationDaysCountAsInOffice);
        const auto progress = ruleProgress(rule, days, reference, today, weekStart);
        if (!progress)
            return {};
        return tr("%1: %2. %3.", "period, days, what is left")
            .arg(periodText(progress->span), ruleCountText(rule, *progress), ruleOutlookText(rule, *progress, today));
    } catch (const StoreError&) {
        return {};
    }
}
