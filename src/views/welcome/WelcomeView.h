// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "LazyStack.h"

#include <QDialog>

class Button;
class QLabel;
class StepDots;

/// Leads a new person through the first run, step by step. What is set in a step is stored at once.
class WelcomeView : public QDialog {
    Q_OBJECT

public:
    explicit WelcomeView(std::vector<LazyStack::PageBuilder> steps, QWidget* parent = nullptr);

    /// Shows a line below the current step.
    void showMessage(const QString& message);

    /// Completes the first run if all its steps have been seen.
    void reject() override;

protected:
    bool focusNextPrevChild(bool next) override;

private:
    [[nodiscard]] QWidget* makeFooter();
    void showStep(int step);
    void announceStep();
    void advance();

    LazyStack* m_steps;
    int m_lastStep;
    int m_step = 0;
    QLabel* m_message;
    StepDots* m_dots;
    Button* m_skip;
    Button* m_back;
    Button* m_next;
};
