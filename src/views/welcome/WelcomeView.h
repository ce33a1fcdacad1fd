// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>

#include <array>

class Button;
class QStackedWidget;
class StepDots;
struct ViewParts;

/// Leads a new person through what Pellory does and what it can be told. What is set on the way is set at once; whoever
/// leaves midway is led through it again when the main window is next opened.
class WelcomeView : public QDialog {
    Q_OBJECT

public:
    explicit WelcomeView(const ViewParts& parts, QWidget* parent = nullptr);

private:
    static constexpr int stepCount = 5;

    [[nodiscard]] QWidget* makeFooter();
    void showStep(int step);
    [[nodiscard]] QWidget* makeStep(int step);
    void goOn();
    void complete();

    const ViewParts& m_parts;
    QStackedWidget* m_steps;
    StepDots* m_dots;
    Button* m_skip;
    Button* m_back;
    Button* m_next;
    std::array<QWidget*, stepCount> m_built{};
    int m_step = 0;
};
