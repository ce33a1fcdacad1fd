// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "TextField.h"

#include <QDate>
#include <QTimer>

class CountingRecords;

/// The name of a day off, which can be edited. It is saved after a pause in typing, and when the field loses the focus
/// or is hidden.
class DayOffField : public TextField {
    Q_OBJECT

public:
    /// `date` is a day off.
    DayOffField(CountingRecords& counting, QDate date, QWidget* parent = nullptr);

protected:
    void hideEvent(QHideEvent* event) override;

private:
    void save();

    CountingRecords& m_counting;
    QDate m_date;
    QTimer m_pause;
};
