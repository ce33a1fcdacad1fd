// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ButtonRow.h"

class QLabel;

/// Says how many past workdays are unmarked, with a link to go through them.
class OpenDaysLine : public ButtonRow {
    Q_OBJECT

public:
    explicit OpenDaysLine(QWidget* parent = nullptr);

    /// Shows a number above 0. A screen reader says it when the line appears, and if it is about `another` month.
    void setCount(int days, bool another);

Q_SIGNALS:
    void reviewRequested();

private:
    QLabel* m_text;
};
