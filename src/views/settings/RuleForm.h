// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "AttendanceRule.h"

#include <QWidget>

#include <functional>

class ButtonRow;
class ComboBox;
class DateField;
class NumberField;
class QFormLayout;
class QLabel;
class QLineEdit;
class WeekdayButtons;
struct AbsenceKind;

/// The fields of a rule, of which only those that matter are shown.
class RuleForm : public QWidget {
    Q_OBJECT

public:
    /// `today` is in the first week of a rule for two weeks that says nothing else.
    RuleForm(const AttendanceRule& rule, const QList<AbsenceKind>& absenceKinds, QDate today,
             QWidget* parent = nullptr);

    /// The rule as it is filled in. What is refused is as it was in the rule at the start.
    [[nodiscard]] AttendanceRule rule() const;
    /// What is wrong with the first field that is refused; empty if none is.
    [[nodiscard]] QString problem() const;
    /// Gives the focus to that field.
    void focusProblem();
    void focusName();
    /// What is shown in place of the name while that is empty.
    void setNamePrompt(const QString& prompt);
    void setName(const QString& name);

Q_SIGNALS:
    void changed();
    /// A person has changed the name.
    void nameEdited();
    /// Return was pressed in a field.
    void accepted();

private:
    struct Refusal {
        QLineEdit* field;
        QString text;
    };

    void addName(QFormLayout& rows);
    void addAmount(QFormLayout& rows);
    void addSubject(QFormLayout& rows, const QList<AbsenceKind>& absenceKinds);
    void addWeekdays(QFormLayout& rows);
    void addSpan(QFormLayout& rows);
    void addValidity(QFormLayout& rows);
    void addRow(QFormLayout& rows, const QString& name, const QList<QWidget*>& fields);
    [[nodiscard]] ComboBox* makeChoice(const QString& name, const QList<std::pair<QString, int>>& entries);
    void fill(QDate today);
    /// Hides what does not matter for what is chosen.
    void refresh();

    [[nodiscard]] AttendanceRule::Unit unit() const;
    [[nodiscard]] AttendanceRule::Span span() const;
    [[nodiscard]] int largestAmount() const;
    [[nodiscard]] std::optional<int> amount() const;
    [[nodiscard]] std::optional<int> weeks() const;
    /// The first field that is refused; nothing if none is.
    [[nodiscard]] std::optional<Refusal> refusal() const;
    [[nodiscard]] std::optional<Refusal> refusalOfDates() const;

    const AttendanceRule m_rule;
    QLineEdit* m_name = nullptr;
    ComboBox* m_bound = nullptr;
    NumberField* m_amount = nullptr;
    ComboBox* m_unit = nullptr;
    ComboBox* m_subject = nullptr;
    ComboBox* m_absenceKind = nullptr;
    WeekdayButtons* m_weekdays = nullptr;
    /// Before the weekdays.
    QLabel* m_weekdaysText = nullptr;
    ComboBox* m_span = nullptr;
    QLabel* m_anchorText = nullptr;
    DateField* m_anchor = nullptr;
    QLabel* m_firstMonthText = nullptr;
    ComboBox* m_firstMonth = nullptr;
    NumberField* m_weeks = nullptr;
    QLabel* m_weeksText = nullptr;
    DateField* m_from = nullptr;
    DateField* m_until = nullptr;
};
