// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class QLabel;
class QVBoxLayout;

/// The contents of one card of the page "Counting".
class CountingCard : public QWidget {
    Q_OBJECT

protected:
    CountingCard(const QString& heading, const QString& help, QWidget* parent = nullptr);

    [[nodiscard]] QVBoxLayout& column() { return *m_column; }
    /// Adds the line for problems, where the controls end that may cause them.
    void addProblemLine();
    /// Says what is wrong, until it is called with an empty text.
    void showProblem(const QString& problem);
    /// Says so if a change could not be stored. Returns whether it could.
    bool report(bool isStored);

private:
    QVBoxLayout* m_column;
    QLabel* m_problem;
};
