// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

/// A row of dots that shows the current step of several.
class StepDots : public QWidget {
    Q_OBJECT

public:
    explicit StepDots(int count, QWidget* parent = nullptr);

    /// `current` counts from 0.
    void setCurrent(int current);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    int m_count;
    int m_current = 0;
};
