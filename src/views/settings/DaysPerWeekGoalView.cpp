// SPDX-License-Identifier: GPL-3.0-or-later
#include "DaysPerWeekGoalView.h"

#include "Follow.h"
#include "IconButton.h"
#include "Labels.h"
#include "Rows.h"
#include "TextField.h"

#include <QGridLayout>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr int firstGoalRow = 1;

} // namespace

DaysPerWeekGoalView::DaysPerWeekGoalView(AppSettings& settings, bool headerEnabled, QWidget* parent)
    : QWidget(parent)
    , m_settings(settings)
    , m_table(new QGridLayout)
    , m_empty(labels::dim(tr("No \"days in office per week\" goals")))
    , m_stringValue(new TextField(tr("New goal")))
    , m_error(labels::error(tr("Input must be a number between 0.0 and 7.0")))
    , m_daysPerWeekGoalChangeError(labels::error(tr("Days Per Week must be a number between 0.0 and 7.0")))
{
    build(headerEnabled);
    m_error->hide();
    follow(settings.daysPerWeekGoals, this, [this] { showGoals(); });
}

void DaysPerWeekGoalView::build(bool headerEnabled)
{
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->setSpacing(10);
    if (headerEnabled) {
        column->addWidget(labels::heading(tr("Days Per Week Goals")));
        column->addWidget(
            labels::dim(tr("These are the goals used by the progress tracker, in average days in-office per week.")));
    }
    m_table->setHorizontalSpacing(8);
    m_table->setVerticalSpacing(6);
    m_table->setColumnStretch(1, 1);
    // Without goals too, or the headings would move with the first.
    m_table->setColumnMinimumWidth(0, m_stringValue->sizeHint().width());
    m_table->addWidget(labels::singleLine(labels::dim(tr("Days Per Week Goal"))), 0, 0);
    m_table->addWidget(labels::dim(tr("Description")), 0, 1);
    column->addLayout(m_table);
    column->addWidget(m_empty);
    column->addWidget(m_daysPerWeekGoalChangeError);

    m_stringValue->setObjectName("stringValue"_L1);
    m_stringValue->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed); // as wide as the goals above
    auto* add = new IconButton(Symbol::Plus, tr("Add Goal"));
    add->setObjectName("addGoal"_L1);
    auto* entry = makeEntryRow(m_stringValue, add, [this](const QString& text) { return addGoal(text); });
    entry->addStretch();
    column->addSpacing(6);
    column->addLayout(entry);
    column->addWidget(m_error);
    connect(m_stringValue, &QLineEdit::textChanged, m_error, &QWidget::hide);
}

void DaysPerWeekGoalView::showGoals()
{
    const auto& goals = m_settings.daysPerWeekGoals.value();
    const bool isSame = std::ranges::equal(m_rows, goals, {}, &Row::goal);
    if (isSame && !goals.isEmpty())
        return;
    QList<Row> gone = std::exchange(m_rows, {});
    for (const auto& goal : goals) {
        const auto kept = std::ranges::find(gone, goal, &Row::goal);
        m_rows.append(kept == gone.end() ? makeRow(goal) : *kept);
        if (kept != gone.end())
            gone.erase(kept);
        place(m_rows.last(), firstGoalRow + static_cast<int>(m_rows.size()) - 1);
    }
    for (const Row& row : gone) {
        for (QWidget* control : row.controls()) {
            control->hide();
            control->deleteLater();
        }
    }
    m_empty->setVisible(goals.isEmpty());
    showRefusal();
}

std::array<QWidget*, 3> DaysPerWeekGoalView::Row::controls() const
{
    return {daysPerWeek, description, remove};
}

bool DaysPerWeekGoalView::Row::isRefused() const
{
    return daysPerWeek->isModified() && !Goal::acceptedText(daysPerWeek->text());
}

DaysPerWeekGoalView::Row DaysPerWeekGoalView::makeRow(const std::shared_ptr<Goal>& goal)
{
    Row row{goal, new TextField(tr("Days Per Week Goal")), new TextField(tr("Description")),
            new IconButton(Symbol::Cross, {})};
    row.remove->setQuiet();
    bind(row);
    return row;
}

void DaysPerWeekGoalView::place(const Row& row, int place)
{
    for (int column = 0; QWidget * control : row.controls()) {
        m_table->removeWidget(control);
        m_table->addWidget(control, place, column++);
    }
}

void DaysPerWeekGoalView::bind(const Row& row)
{
    const auto& [goal, days, description, remove] = row;
    follow(goal->wantedDaysPerWeek, days, [row] {
        // Not under the fingers of a person who is typing.
        if (!row.daysPerWeek->hasFocus())
            row.daysPerWeek->setText(row.goal->wantedDaysPerWeek);
        row.remove->setHelp(tr("Remove the goal %1").arg(row.goal->wantedDaysPerWeek));
        row.description->setAccessibleName(tr("Description of the goal %1").arg(row.goal->wantedDaysPerWeek));
    });
    follow(goal->desc, description, [row] {
        if (row.description->text() != row.goal->desc)
            row.description->setText(row.goal->desc);
    });
    connect(days, &QLineEdit::textChanged, this, &DaysPerWeekGoalView::showRefusal);
    // Not while typing: "75" begins with a number that would be accepted. What is refused stays, with the message.
    connect(days, &QLineEdit::editingFinished, days, [row] {
        if (row.isRefused())
            return;
        if (row.daysPerWeek->isModified())
            row.goal->wantedDaysPerWeek = *Goal::acceptedText(row.daysPerWeek->text());
        row.daysPerWeek->setText(row.goal->wantedDaysPerWeek);
    });
    connect(description, &QLineEdit::textEdited, this, [row](const QString& text) { row.goal->desc = text; });
    connect(remove, &QAbstractButton::clicked, this, [this, row] { this->remove(*row.goal); });
}

void DaysPerWeekGoalView::showRefusal()
{
    m_daysPerWeekGoalChangeError->setVisible(std::ranges::any_of(m_rows, &Row::isRefused));
}

void DaysPerWeekGoalView::remove(const Goal& goal)
{
    const auto row = std::ranges::find(m_rows, &goal, [](const Row& each) { return each.goal.get(); });
    const auto place = row - m_rows.begin();
    const bool hadFocus = std::ranges::any_of(row->controls(), &QWidget::hasFocus);
    m_settings.removeGoal(goal);
    // For people who use the keyboard.
    if (hadFocus && m_rows.isEmpty())
        m_stringValue->setFocus(Qt::TabFocusReason);
    else if (hadFocus)
        m_rows.at(std::min(place, m_rows.size() - 1)).remove->setFocus(Qt::TabFocusReason);
}

bool DaysPerWeekGoalView::addGoal(const QString& text)
{
    const bool isAccepted = m_settings.addGoal(text);
    m_error->setVisible(!isAccepted);
    return isAccepted;
}
