// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "AppSettings.h"

#include <QWidget>

#include <array>

class IconButton;
class QGridLayout;
class QLabel;
class QLineEdit;

/// The editor of the goals. Each change is stored at once.
class DaysPerWeekGoalView : public QWidget {
    Q_OBJECT

public:
    DaysPerWeekGoalView(AppSettings& settings, bool headerEnabled, QWidget* parent = nullptr);

private:
    /// The controls of one goal.
    struct Row {
        std::shared_ptr<Goal> goal;
        QLineEdit* daysPerWeek;
        QLineEdit* description;
        IconButton* remove;

        [[nodiscard]] std::array<QWidget*, 3> controls() const;
        /// Whether the text is one that was typed and is not accepted.
        [[nodiscard]] bool isRefused() const;
    };

    void build(bool headerEnabled);
    void showGoals();
    [[nodiscard]] Row makeRow(const std::shared_ptr<Goal>& goal);
    void place(const Row& row, int place);
    void bind(const Row& row);
    void showRefusal();
    void remove(const Goal& goal);
    bool addGoal(const QString& text);

    AppSettings& m_settings;
    QGridLayout* m_table;
    QLabel* m_empty;
    QLineEdit* m_stringValue;
    QLabel* m_error;
    QLabel* m_daysPerWeekGoalChangeError;
    QList<Row> m_rows;
};
