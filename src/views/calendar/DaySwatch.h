// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Day.h"

#include <QWidget>

/// A small picture of a day's cell, for keys to the colours.
class DaySwatch : public QWidget {
    Q_OBJECT

public:
    explicit DaySwatch(const Day& day, bool isDayOff = false, QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Day m_day;
    bool m_isDayOff;
};
