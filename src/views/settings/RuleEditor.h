// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Absence.h"
#include "AttendanceRule.h"

#include <QWidget>

#include <functional>

class Button;
class CountingRecords;
class QLabel;
class QVBoxLayout;
class RuleForm;
struct RulePreset;

/// Fills in a new rule, or changes one. A change of what counted before asks from when on it holds.
class RuleEditor : public QWidget {
    Q_OBJECT

public:
    /// What a rule means now, in a line; may be empty.
    using Meaning = std::function<QString(const AttendanceRule& rule)>;

    /// A rule without id is new.
    RuleEditor(CountingRecords& counting, const RulePreset& start, QDate today, Meaning meaning,
               QWidget* parent = nullptr);

    void focusFirst();

Q_SIGNALS:
    /// The view is to be closed.
    void finished();

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void build();
    [[nodiscard]] QWidget* makeFoot();
    [[nodiscard]] QWidget* makeQuestion();
    void refresh();
    void save();
    /// Saves for all time, or from a day on if the old rule is to hold until then.
    void saveSince(const std::optional<QDate>& day);
    void ask(QDate day);
    void showQuestion(bool isShown);
    void cancel();
    [[nodiscard]] bool isNew() const { return m_before.id.isNull(); }
    /// The rule as it is filled in, with a name.
    [[nodiscard]] AttendanceRule rule() const;

    CountingRecords& m_counting;
    const AttendanceRule m_before;
    const QDate m_today;
    const Meaning m_meaning;
    /// Those that can be chosen, with one that is added if the rule is saved.
    QList<AbsenceKind> m_kinds;
    /// Whether the name follows from the rest, as long as nobody has changed it.
    bool m_isNameGiven;
    RuleForm* m_form;
    QLabel* m_sentence;
    QLabel* m_now;
    QLabel* m_problem;
    QWidget* m_foot = nullptr;
    QWidget* m_question = nullptr;
    Button* m_since = nullptr;
    QLabel* m_sinceText = nullptr;
    Button* m_save = nullptr;
    QDate m_sinceDay;
};

/// The first day on which a change of a rule can hold if it is not to change what counted before. Nothing if that makes
/// no difference: only the name or the time of validity has changed, or the rule has ended or not begun.
[[nodiscard]] std::optional<QDate> dayOfChange(const AttendanceRule& before, const AttendanceRule& after, QDate today);
