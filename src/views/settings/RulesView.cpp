// SPDX-License-Identifier: GPL-3.0-or-later
#include "RulesView.h"

#include "Absence.h"
#include "Button.h"
#include "Clock.h"
#include "CountingRecords.h"
#include "IconButton.h"
#include "Labels.h"
#include "LongWords.h"
#include "MenuStyle.h"
#include "RulePresets.h"
#include "RuleTexts.h"

#include <QMenu>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

// A rule without a name of its own is named after its summary, without the dates.
QString withoutName(const QString& summary, const QString& name)
{
    const QString separator = u", "_s;
    if (summary == name)
        return {};
    return summary.startsWith(name + separator) ? summary.sliced(name.size() + separator.size()) : summary;
}

} // namespace

RulesView::RulesView(CountingRecords& counting, const Clock& clock, QWidget* parent)
    : QWidget(parent)
    , m_counting(counting)
    , m_clock(clock)
    , m_list(new QVBoxLayout)
    , m_empty(labels::dim(tr("No rules")))
    , m_add(new Button(tr("Add Rule")))
{
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->setSpacing(10);
    column->addWidget(labels::heading(tr("Rules")));
    column->addWidget(labels::dim(tr("What your employer asks for. How far each rule is met is shown below the "
                                     "progress trackers.")));
    m_list->setSpacing(12);
    m_list->addWidget(m_empty);
    column->addLayout(m_list);
    m_add->setObjectName("addRule"_L1);
    column->addSpacing(2);
    column->addWidget(m_add, 0, Qt::AlignLeft);
    connect(m_add, &QAbstractButton::clicked, this, &RulesView::popUpMenu);
    connect(&counting, &CountingRecords::changed, this, &RulesView::refresh);
    connect(&clock, &Clock::dayChanged, this, &RulesView::refresh);
    refresh();
}

void RulesView::refresh()
{
    m_rules = m_counting.rules();
    m_empty->setVisible(m_rules.isEmpty());
    // Rows are reused, and so keep the focus: after one rule is removed the next can be.
    while (m_rows.size() < m_rules.size())
        m_rows.append(makeRow());
    while (m_rows.size() > m_rules.size()) {
        QWidget* last = m_rows.takeLast().whole;
        last->hide();
        last->deleteLater();
    }
    for (qsizetype i = 0; i < m_rules.size(); ++i)
        showRule(m_rows.at(i), m_rules.at(i));
}

RulesView::Row RulesView::makeRow()
{
    const Row row{new QWidget, cutLongWords(labels::text({})), cutLongWords(labels::dim({})),
                  new IconButton(Symbol::Pencil, {}), new IconButton(Symbol::Cross, {})};
    auto* texts = new QVBoxLayout;
    texts->setSpacing(0);
    texts->addWidget(row.name);
    texts->addWidget(row.summary);
    auto* line = new QHBoxLayout(row.whole);
    line->setContentsMargins({});
    line->setSpacing(4);
    line->addLayout(texts, 1);
    for (IconButton* button : {row.edit, row.remove}) {
        button->setQuiet();
        line->addWidget(button);
    }
    m_list->addWidget(row.whole);
    const qsizetype place = m_rows.size();
    connect(row.edit, &QAbstractButton::clicked, this, [this, place] { Q_EMIT editRequested({m_rules.at(place)}); });
    connect(row.remove, &QAbstractButton::clicked, this, [this, place] { remove(place); });
    return row;
}

void RulesView::showRule(const Row& row, const AttendanceRule& rule)
{
    const bool hasEnded = rule.until && *rule.until < m_clock.today();
    row.name->setText(rule.name);
    row.name->setForegroundRole(hasEnded ? QPalette::PlaceholderText : QPalette::WindowText);
    const QString summary = withoutName(ruleSummary(rule, m_counting.absenceKinds()), rule.name);
    row.summary->setText(summary);
    row.summary->setVisible(!summary.isEmpty());
    row.edit->setHelp(tr("Edit the rule %1").arg(rule.name));
    row.remove->setHelp(tr("Remove the rule %1").arg(rule.name));
}

void RulesView::remove(qsizetype place)
{
    const bool hadFocus = m_rows.at(place).remove->hasFocus();
    m_counting.removeRule(m_rules.at(place).id);
    // For people who use the keyboard.
    if (hadFocus && m_rows.isEmpty())
        m_add->setFocus(Qt::TabFocusReason);
    else if (hadFocus)
        m_rows.at(std::min(place, m_rows.size() - 1)).remove->setFocus(Qt::TabFocusReason);
}

void RulesView::focusRule(const QUuid& id)
{
    const auto found = std::ranges::find(m_rules, id, &AttendanceRule::id);
    QWidget* button = found == m_rules.end() ? m_add : static_cast<QWidget*>(m_rows.at(found - m_rules.begin()).edit);
    const bool isByKey = window()->testAttribute(Qt::WA_KeyboardFocusChange);
    button->setFocus(isByKey ? Qt::TabFocusReason : Qt::OtherFocusReason);
}

void RulesView::popUpMenu()
{
    auto* menu = new QMenu(this);
    MenuStyle::apply(*menu);
    connect(menu, &QMenu::aboutToHide, menu, &QObject::deleteLater);
    const auto add = [&](const QString& text, const RulePreset& start) {
        connect(menu->addAction(text), &QAction::triggered, this, [this, start] { Q_EMIT editRequested(start); });
    };
    for (const RulePreset& preset : rulePresets())
        add(preset.rule.name, preset);
    menu->addSeparator();
    add(tr("Own Rule..."), {});
    menu->popup(m_add->mapToGlobal(m_add->rect().bottomLeft() + QPoint(0, 1)));
}
