// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "AttendanceRule.h"

#include <QWidget>

class Button;
class Clock;
class CountingRecords;
class IconButton;
class QLabel;
class QVBoxLayout;
struct RulePreset;

/// The list of the rules, with a menu of rules to add.
class RulesView : public QWidget {
    Q_OBJECT

public:
    RulesView(CountingRecords& counting, const Clock& clock, QWidget* parent = nullptr);

    /// Gives the focus to the rule with this id, or to the button that adds one.
    void focusRule(const QUuid& id);

Q_SIGNALS:
    /// A rule is to be edited. One without id is new.
    void editRequested(const RulePreset& start);

private:
    /// The controls of one rule.
    struct Row {
        QWidget* whole;
        QLabel* name;
        QLabel* summary;
        IconButton* edit;
        IconButton* remove;
    };

    void refresh();
    [[nodiscard]] Row makeRow();
    void showRule(const Row& row, const AttendanceRule& rule);
    void remove(qsizetype place);
    void popUpMenu();

    CountingRecords& m_counting;
    const Clock& m_clock;
    QVBoxLayout* m_list;
    QLabel* m_empty;
    Button* m_add;
    QList<AttendanceRule> m_rules;
    QList<Row> m_rows;
};
