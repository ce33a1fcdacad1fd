// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "LazyStack.h"

#include <QDialog>

class Button;
class StepDots;

/// Leads a new person through the first run, step by step. What is set in a step is stored at once.
class WelcomeView : public QDialog {
    Q_OBJECT

public:
    explicit WelcomeView(std::vector<LazyStack::PageBuilder> steps, QWidget* parent = nullptr);

private:
    [[nodiscard]] QWidget* makeFooter();
    void showStep(int step);
    void advance();

    LazyStack* m_steps;
    int m_lastStep;
    int m_step = 0;
    StepDots* m_dots;
    Button* m_skip;
    Button* m_back;
    Button* m_next;
};
