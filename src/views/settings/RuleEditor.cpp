// SPDX-License-Identifier: GPL-3.0-or-later
#include "RuleEditor.h"

#include "Button.h"
#include "ButtonRow.h"
#include "Card.h"
#include "CountingRecords.h"
#include "Labels.h"
#include "LongWords.h"
#include "RuleForm.h"
#include "RulePresets.h"
#include "RuleTexts.h"

#include <QKeyEvent>
#include <QLocale>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

// The kind of absence that is added when the rule is saved.
constexpr int newKind = -1;

QList<AbsenceKind> kindsWith(QList<AbsenceKind> kinds, const QString& name)
{
    const bool isThere = std::ranges::any_of(
        kinds, [&name](const AbsenceKind& kind) { return description(kind).compare(name, Qt::CaseInsensitive) == 0; });
    if (!name.isEmpty() && !isThere)
        kinds.append({.id = newKind, .name = name});
    return kinds;
}

AttendanceRule startOf(const RulePreset& preset, const QList<AbsenceKind>& kinds)
{
    AttendanceRule rule = preset.rule;
    for (const AbsenceKind& kind : kinds) {
        if (description(kind).compare(preset.absenceKindName, Qt::CaseInsensitive) == 0)
            rule.absenceKind = kind.id;
    }
    return rule;
}

// Whether both ask for the same, whenever they hold.
bool isSameDemand(AttendanceRule rule, const AttendanceRule& other)
{
    rule.id = other.id;
    rule.name = other.name;
    rule.anchor = other.anchor;
    rule.from = other.from;
    rule.until = other.until;
    rule.position = other.position;
    return rule == other;
}

// The name of a preset that asks for the same, or the summary.
QString givenName(const AttendanceRule& rule, const QList<AbsenceKind>& kinds)
{
    for (const RulePreset& preset : rulePresets()) {
        const AttendanceRule start = startOf(preset, kinds);
        const bool lacksKind = !preset.absenceKindName.isEmpty() && start.absenceKind == AbsenceKind::none;
        if (!lacksKind && isSameDemand(start, rule))
            return preset.rule.name;
    }
    AttendanceRule always = rule;
    always.from = always.until = std::nullopt;
    return ruleSummary(always, kinds);
}

bool hasGivenName(const AttendanceRule& rule, const QList<AbsenceKind>& kinds)
{
    return rule.name == givenName(rule, kinds) || rule.name == ruleSummary(rule, kinds);
}

// As high as so many lines, so that what is below does not move with the text.
QLabel* withRoom(QLabel* label, int lines)
{
    label->setMinimumHeight(lines * label->fontMetrics().lineSpacing());
    label->setAlignment(Qt::AlignLeading | Qt::AlignTop);
    return label;
}

} // namespace

RuleEditor::RuleEditor(CountingRecords& counting, const RulePreset& start, QDate today, Meaning meaning,
                       QWidget* parent)
    : QWidget(parent)
    , m_counting(counting)
    , m_before(startOf(start, kindsWith(counting.absenceKinds(), start.absenceKindName)))
    , m_today(today)
    , m_meaning(std::move(meaning))
    , m_kinds(kindsWith(counting.absenceKinds(), start.absenceKindName))
    , m_isNameGiven(hasGivenName(m_before, m_kinds))
    , m_form(new RuleForm(m_before, m_kinds, today))
    , m_sentence(withRoom(cutLongWords(labels::text({})), 2))
    , m_now(withRoom(labels::dim({}), 2))
    , m_problem(labels::error({}))
{
    build();
    connect(m_form, &RuleForm::changed, this, &RuleEditor::refresh);
    connect(m_form, &RuleForm::nameEdited, this, [this] { m_isNameGiven = false; });
    connect(m_form, &RuleForm::accepted, this, &RuleEditor::save);
    refresh();
}

void RuleEditor::build()
{
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->setSpacing(12);
    column->addWidget(labels::heading(isNew() ? tr("New Rule") : tr("Edit Rule")));
    column->addWidget(m_form);
    m_sentence->setObjectName("ruleSentence"_L1);
    m_now->setObjectName("ruleNow"_L1);
    m_problem->setObjectName("ruleProblem"_L1);
    auto* words = new QVBoxLayout;
    words->setSpacing(2);
    words->addWidget(m_problem);
    words->addWidget(m_sentence);
    words->addWidget(m_now);
    column->addLayout(words);
    m_foot = makeFoot();
    column->addWidget(m_foot);
}

QWidget* RuleEditor::makeFoot()
{
    m_save = new Button(isNew() ? tr("Add Rule") : tr("Save Changes"));
    m_save->setObjectName("saveRule"_L1);
    m_save->setProminent(true);
    auto* cancel = new Button(tr("Cancel"));
    cancel->setObjectName("cancelRule"_L1);
    auto* buttons = new ButtonRow(Qt::AlignRight);
    buttons->add(cancel);
    buttons->add(m_save);
    connect(cancel, &QAbstractButton::clicked, this, &RuleEditor::finished);
    connect(m_save, &QAbstractButton::clicked, this, &RuleEditor::save);
    return buttons;
}

QWidget* RuleEditor::makeQuestion()
{
    auto* question = new QWidget;
    auto* rows = new QGridLayout(question);
    rows->setContentsMargins({});
    rows->setHorizontalSpacing(14);
    rows->setVerticalSpacing(10);
    rows->setColumnStretch(1, 1);
    rows->addWidget(labels::announced(labels::strong(tr("When does the change apply?"))), 0, 0, 1, 2);
    m_since = new Button({});
    m_sinceText = labels::dim({});
    auto* always = new Button(tr("Always"));
    auto* back = new Button(tr("Back"));
    m_since->setObjectName("since"_L1);
    always->setObjectName("always"_L1);
    rows->addWidget(m_since, 1, 0);
    rows->addWidget(m_sinceText, 1, 1);
    rows->addWidget(always, 2, 0);
    rows->addWidget(labels::dim(tr("Earlier months are counted by the changed rule too.")), 2, 1);
    rows->addWidget(back, 3, 1, Qt::AlignRight);
    connect(m_since, &QAbstractButton::clicked, this, [this] { saveSince(m_sinceDay); });
    connect(always, &QAbstractButton::clicked, this, [this] { saveSince({}); });
    connect(back, &QAbstractButton::clicked, this, &RuleEditor::cancel);
    return question;
}

void RuleEditor::focusFirst()
{
    m_form->focusName();
}

AttendanceRule RuleEditor::rule() const
{
    AttendanceRule rule = m_form->rule();
    if (rule.name.isEmpty())
        rule.name = ruleSummary(rule, m_kinds);
    return rule;
}

void RuleEditor::refresh()
{
    const QString problem = m_form->problem();
    const AttendanceRule rule = m_form->rule();
    if (m_isNameGiven && problem.isEmpty())
        m_form->setName(isSameDemand(rule, m_before) ? m_before.name : givenName(rule, m_kinds));
    const QString summary = ruleSummary(rule, m_kinds);
    m_form->setNamePrompt(problem.isEmpty() ? summary : QString());
    m_problem->setText(problem);
    m_problem->setVisible(!problem.isEmpty());
    m_sentence->setVisible(problem.isEmpty());
    m_sentence->setText(summary);
    m_now->setText(problem.isEmpty() ? m_meaning(rule) : QString());
}

void RuleEditor::save()
{
    if (!m_form->problem().isEmpty()) {
        announce(*this, m_form->problem());
        m_form->focusProblem();
        return;
    }
    const auto day = isNew() ? std::nullopt : dayOfChange(m_before, rule(), m_today);
    if (day)
        ask(*day);
    else
        saveSince({});
}

void RuleEditor::ask(QDate day)
{
    m_sinceDay = day;
    if (m_question == nullptr) {
        m_question = makeQuestion();
        static_cast<QVBoxLayout*>(layout())->addWidget(m_question);
    }
    const auto written = [](QDate date) { return QLocale().toString(date, tr("d MMMM yyyy")); };
    m_since->setText(day == m_today ? tr("From Today") : tr("From %1", "a date").arg(written(day)));
    m_sinceText->setText(tr("The rule as it was ends on %1 and keeps its figures.").arg(written(day.addDays(-1))));
    showQuestion(true);
}

void RuleEditor::showQuestion(bool isShown)
{
    m_form->setEnabled(!isShown);
    m_foot->setVisible(!isShown);
    m_question->setVisible(isShown);
    (isShown ? m_since : m_save)->setFocus(Qt::TabFocusReason);
}

void RuleEditor::saveSince(const std::optional<QDate>& day)
{
    AttendanceRule changed = rule();
    if (changed.absenceKind == newKind) {
        const auto added = m_counting.addAbsenceKind(m_kinds.last().name);
        changed.absenceKind = added ? added->id : AbsenceKind::none;
    }
    const bool isSaved = isNew() ? m_counting.addRule(changed)
                         : !day  ? m_counting.changeRule(changed)
                                 : m_counting.changeRule(changed, *day);
    if (isSaved) {
        Q_EMIT finished();
        return;
    }
    m_problem->setText(tr("The rule could not be saved, because your data cannot be read. Try again in a moment."));
    m_problem->show();
}

void RuleEditor::cancel()
{
    if (m_question != nullptr && m_question->isVisible())
        showQuestion(false);
    else
        Q_EMIT finished();
}

bool RuleEditor::event(QEvent* event)
{
    // Otherwise the key would close the window.
    if (event->type() == QEvent::ShortcutOverride && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape)
        event->accept();
    return QWidget::event(event);
}

void RuleEditor::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape)
        cancel();
    else
        QWidget::keyPressEvent(event);
}

std::optional<QDate> dayOfChange(const AttendanceRule& before, const AttendanceRule& after, QDate today)
{
    const QDate day = std::max(after.from.value_or(today), today);
    AttendanceRule same = after;
    same.name = before.name;
    same.from = before.from;
    same.until = before.until;
    const bool hasHeld = !before.from || *before.from < day;
    const bool hasEnded = before.until && *before.until < today;
    const bool holdsThen = !after.until || *after.until >= day;
    return same != before && hasHeld && !hasEnded && holdsThen ? std::optional(day) : std::nullopt;
}
