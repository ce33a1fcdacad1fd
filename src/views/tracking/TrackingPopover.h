// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Popover.h"

class Button;
class Clock;
class InOfficeCheck;
class QFormLayout;
class QLabel;
class TrackingStatus;

/// The status of the automatic tracking, below its indicator.
class TrackingPopover : public Popover {
    Q_OBJECT

public:
    TrackingPopover(TrackingStatus& status, const InOfficeCheck& check, const Clock& clock, QWidget* anchor);

Q_SIGNALS:
    void setUpRequested();

private:
    void refresh();
    void showResult();
    [[nodiscard]] QString spokenRows() const;
    [[nodiscard]] QString timeText(const QDateTime& time) const;

    TrackingStatus& m_status;
    const InOfficeCheck& m_check;
    const Clock& m_clock;
    QLabel* m_title;
    QFormLayout* m_rows;
    QLabel* m_wifi;
    QLabel* m_location;
    QLabel* m_lastCheck;
    QLabel* m_result;
    QLabel* m_nextCheck;
    Button* m_setUp;
};
