// SPDX-License-Identifier: GPL-3.0-or-later
#include "RuleForm.h"

#include "Absence.h"
#include "ButtonRow.h"
#include "ComboBox.h"
#include "DateField.h"
#include "FormRows.h"
#include "Labels.h"
#include "NumberField.h"
#include "TextField.h"
#include "WeekdayButtons.h"

#include <QFormLayout>
#include <QLocale>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

using Bound = AttendanceRule::Bound;
using Unit = AttendanceRule::Unit;
using Subject = AttendanceRule::Subject;
using Span = AttendanceRule::Span;

constexpr int hundredths = 100;

template <class Choice> std::pair<QString, int> choiceEntry(const QString& text, Choice choice)
{
    return {text, static_cast<int>(choice)};
}

double numberOf(int amount)
{
    return amount / static_cast<double>(hundredths);
}

bool isNoDate(const DateField& field)
{
    return !field.text().trimmed().isEmpty() && !field.date();
}

} // namespace

RuleForm::RuleForm(const AttendanceRule& rule, const QList<AbsenceKind>& absenceKinds, QDate today, QWidget* parent)
    : QWidget(parent)
    , m_rule(rule)
{
    auto* rows = makeFormRows(*this);
    addName(*rows);
    addAmount(*rows);
    addSubject(*rows, absenceKinds);
    addWeekdays(*rows);
    addSpan(*rows);
    addValidity(*rows);
    fill(today);
    refresh();
    const auto report = [this] {
        refresh();
        Q_EMIT changed();
    };
    for (const auto* field : findChildren<QLineEdit*>()) {
        connect(field, &QLineEdit::textChanged, this, report);
        connect(field, &QLineEdit::returnPressed, this, &RuleForm::accepted);
    }
    connect(m_name, &QLineEdit::textEdited, this, &RuleForm::nameEdited);
    for (const auto* choice : findChildren<ComboBox*>())
        connect(choice, &QComboBox::currentIndexChanged, this, report);
    connect(m_weekdays, &WeekdayButtons::chosen, this, report);
}

void RuleForm::addRow(QFormLayout& rows, const QString& name, const QList<QWidget*>& fields)
{
    auto* row = new ButtonRow(Qt::AlignLeft);
    for (QWidget* field : fields)
        row->add(field);
    row->setMinimumHeight(m_name->sizeHint().height()); // so that nothing moves when a field is shown
    rows.addRow(besideField(name), row);
}

ComboBox* RuleForm::makeChoice(const QString& name, const QList<std::pair<QString, int>>& entries)
{
    auto* choice = new ComboBox(name);
    for (const auto& [text, value] : entries)
        choice->addItem(text, value);
    return choice;
}

void RuleForm::addName(QFormLayout& rows)
{
    m_name = new TextField(tr("Name"));
    m_name->setObjectName("ruleName"_L1);
    rows.addRow(besideField(tr("Name")), m_name);
}

void RuleForm::addAmount(QFormLayout& rows)
{
    m_bound = makeChoice(tr("At least or at most"),
                         {choiceEntry(tr("at least"), Bound::AtLeast), choiceEntry(tr("at most"), Bound::AtMost)});
    m_amount = new NumberField(tr("How many"));
    m_amount->setObjectName("ruleAmount"_L1);
    m_unit = makeChoice(tr("Unit"), {choiceEntry(tr("days"), Unit::Days),
                                     choiceEntry(tr("% of the workdays"), Unit::PercentOfWorkdays),
                                     choiceEntry(tr("days a week on average"), Unit::DaysPerWeek)});
    m_unit->setObjectName("ruleUnit"_L1);
    addRow(rows, tr("How many"), {m_bound, m_amount, m_unit});
}

void RuleForm::addSubject(QFormLayout& rows, const QList<AbsenceKind>& absenceKinds)
{
    m_subject = makeChoice(tr("Which days"), {choiceEntry(tr("in the office"), Subject::InOffice),
                                              choiceEntry(tr("out of office"), Subject::OutOfOffice)});
    m_subject->setObjectName("ruleSubject"_L1);
    m_absenceKind = makeChoice(tr("Reason"), {{tr("for any reason"), AbsenceKind::none}});
    for (const AbsenceKind& kind : absenceKinds)
        m_absenceKind->addItem(description(kind), kind.id);
    if (m_absenceKind->findData(m_rule.absenceKind) < 0)
        m_absenceKind->addItem(tr("for a reason that was removed"), m_rule.absenceKind);
    addRow(rows, tr("Which days"), {m_subject, m_absenceKind});
}

void RuleForm::addWeekdays(QFormLayout& rows)
{
    m_weekdays = new WeekdayButtons;
    m_weekdays->setAccessibleName(tr("Only on"));
    m_weekdaysText = besideField(tr("On any day"));
    m_weekdaysText->setMinimumWidth(m_weekdaysText->sizeHint().width()); // so that nothing moves with the text
    auto* row = new ButtonRow(Qt::AlignLeft);
    row->add(m_weekdays);
    rows.addRow(m_weekdaysText, row);
}

void RuleForm::addSpan(QFormLayout& rows)
{
    m_span = makeChoice(tr("In each"),
                        {choiceEntry(tr("week"), Span::Week), choiceEntry(tr("two weeks"), Span::TwoWeeks),
                         choiceEntry(tr("month"), Span::Month), choiceEntry(tr("quarter"), Span::Quarter),
                         choiceEntry(tr("year"), Span::Year), choiceEntry(tr("last weeks"), Span::LastWeeks)});
    m_span->setObjectName("ruleSpan"_L1);
    m_anchorText = besideField(tr("the first with", "a date"));
    m_anchor = new DateField(tr("A day in the first of the two weeks"));
    m_firstMonthText = besideField(tr("beginning in", "a month"));
    m_firstMonth = makeChoice(tr("First month"), {});
    for (int month = 1; month <= 12; ++month)
        m_firstMonth->addItem(QLocale().standaloneMonthName(month), month);
    m_weeks = new NumberField(tr("How many weeks"));
    m_weeks->setObjectName("ruleWeeks"_L1);
    m_weeksText = besideField(tr("weeks"));
    addRow(rows, tr("In each"), {m_span, m_anchorText, m_anchor, m_firstMonthText, m_firstMonth, m_weeks, m_weeksText});
}

void RuleForm::addValidity(QFormLayout& rows)
{
    m_from = new DateField(tr("First day on which the rule holds"));
    m_from->setPlaceholderText(tr("always"));
    m_until = new DateField(tr("Last day on which the rule holds"));
    m_from->setObjectName("ruleFrom"_L1);
    m_until->setObjectName("ruleUntil"_L1);
    m_until->setPlaceholderText(tr("no end"));
    addRow(rows, tr("Holds from"), {m_from, besideField(tr("until")), m_until});
}

void RuleForm::fill(QDate today)
{
    const auto choose = [](ComboBox* choice, auto value) {
        choice->setCurrentIndex(choice->findData(static_cast<int>(value)));
    };
    m_name->setText(m_rule.name);
    choose(m_bound, m_rule.bound);
    m_amount->setNumber(numberOf(m_rule.amount));
    choose(m_unit, m_rule.unit);
    choose(m_subject, m_rule.subject);
    choose(m_absenceKind, m_rule.absenceKind);
    m_weekdays->setWeekdays(m_rule.weekdays == Weekdays::all() ? Weekdays() : m_rule.weekdays);
    choose(m_span, m_rule.span);
    m_anchor->setDate(m_rule.anchor.value_or(today));
    choose(m_firstMonth, m_rule.firstMonth);
    m_weeks->setText(QLocale().toString(m_rule.weeks));
    if (m_rule.from)
        m_from->setDate(*m_rule.from);
    if (m_rule.until)
        m_until->setDate(*m_rule.until);
}

void RuleForm::refresh()
{
    const auto show = [](bool isShown, std::initializer_list<QWidget*> widgets) {
        for (QWidget* widget : widgets)
            widget->setVisible(isShown);
    };
    show(Subject(m_subject->currentData().toInt()) == Subject::OutOfOffice, {m_absenceKind});
    m_weekdaysText->setText(m_weekdays->weekdays().isEmpty() ? tr("On any day") : tr("Only on"));
    show(span() == Span::TwoWeeks, {m_anchorText, m_anchor});
    show(span() == Span::Quarter || span() == Span::Year, {m_firstMonthText, m_firstMonth});
    show(span() == Span::LastWeeks, {m_weeks, m_weeksText});
}

AttendanceRule::Unit RuleForm::unit() const
{
    return Unit(m_unit->currentData().toInt());
}

AttendanceRule::Span RuleForm::span() const
{
    return Span(m_span->currentData().toInt());
}

int RuleForm::largestAmount() const
{
    switch (unit()) {
    case Unit::DaysPerWeek:
        return 5 * hundredths; // which counts weeks of five workdays
    case Unit::PercentOfWorkdays:
        return 100 * hundredths;
    case Unit::Days:
        break;
    }
    return AttendanceRule::largestAmount;
}

std::optional<int> RuleForm::amount() const
{
    const auto number = m_amount->number();
    if (!number || !(*number > 0.0) || *number * hundredths > largestAmount())
        return {};
    const auto amount = static_cast<int>(std::lround(*number * hundredths));
    return amount >= AttendanceRule::smallestAmount ? std::optional(amount) : std::nullopt;
}

std::optional<int> RuleForm::weeks() const
{
    bool isNumber = false;
    const int weeks = QLocale().toInt(m_weeks->text().trimmed(), &isNumber);
    return isNumber && weeks >= 1 && weeks <= AttendanceRule::mostWeeks ? std::optional(weeks) : std::nullopt;
}

std::optional<RuleForm::Refusal> RuleForm::refusal() const
{
    if (!amount()) {
        const QString range =
            unit() == Unit::DaysPerWeek
                ? tr("How many must be a number above 0 and up to %1, because an average counts weeks "
                     "of %1 workdays")
                : tr("How many must be a number above 0 and up to %1");
        return Refusal{m_amount, range.arg(NumberField::textOf(numberOf(largestAmount())))};
    }
    if (span() == Span::LastWeeks && !weeks()) {
        return Refusal{m_weeks, tr("Weeks must be a whole number between 1 and %1").arg(AttendanceRule::mostWeeks)};
    }
    return refusalOfDates();
}

std::optional<RuleForm::Refusal> RuleForm::refusalOfDates() const
{
    if (span() == Span::TwoWeeks && !m_anchor->date())
        return Refusal{m_anchor, m_anchor->refusal()};
    for (DateField* field : {m_from, m_until}) {
        if (isNoDate(*field))
            return Refusal{field, field->refusal()};
    }
    if (m_from->date() && m_until->date() && *m_until->date() < *m_from->date())
        return Refusal{m_until, tr("The last day must not be before the first")};
    return {};
}

QString RuleForm::problem() const
{
    const auto found = refusal();
    return found ? found->text : QString();
}

void RuleForm::focusProblem()
{
    if (const auto found = refusal()) {
        found->field->setFocus(Qt::TabFocusReason);
        found->field->selectAll();
    }
}

void RuleForm::focusName()
{
    m_name->setFocus(Qt::TabFocusReason);
}

void RuleForm::setNamePrompt(const QString& prompt)
{
    m_name->setPlaceholderText(prompt);
}

void RuleForm::setName(const QString& name)
{
    if (m_name->text() == name)
        return;
    m_name->setText(name);
    m_name->setCursorPosition(0); // or a long name would show its end
}

AttendanceRule RuleForm::rule() const
{
    AttendanceRule rule = m_rule;
    rule.name = m_name->text().simplified();
    rule.bound = Bound(m_bound->currentData().toInt());
    rule.amount = amount().value_or(m_rule.amount);
    rule.unit = unit();
    rule.subject = Subject(m_subject->currentData().toInt());
    rule.absenceKind = rule.subject == Subject::OutOfOffice ? m_absenceKind->currentData().toInt() : AbsenceKind::none;
    rule.weekdays = m_weekdays->weekdays().isEmpty() ? Weekdays::all() : m_weekdays->weekdays();
    rule.span = span();
    rule.anchor = rule.span == Span::TwoWeeks ? m_anchor->date() : std::nullopt;
    const bool hasFirstMonth = rule.span == Span::Quarter || rule.span == Span::Year;
    rule.firstMonth = hasFirstMonth ? m_firstMonth->currentData().toInt() : 1;
    rule.weeks = rule.span == Span::LastWeeks ? weeks().value_or(m_rule.weeks) : 1;
    rule.from = m_from->date();
    rule.until = m_until->date();
    return rule;
}
