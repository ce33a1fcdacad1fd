// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class Button;
class Clock;
class InOfficeCheck;
class QFormLayout;
class QLabel;
class TrackingStatus;

/// A small window below its anchor with the status of the automatic tracking. It deletes itself when it is closed.
class TrackingPopover : public QWidget {
    Q_OBJECT

public:
    TrackingPopover(TrackingStatus& status, const InOfficeCheck& check, const Clock& clock, QWidget* anchor);

    /// Gives it round corners and a shadow, which need a windowing system that blends windows.
    void setBlended(bool isBlended);
    void popUp();

Q_SIGNALS:
    void setUpRequested();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    /// The room for the shadow on each side.
    [[nodiscard]] int shadow() const;
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
    bool m_isBlended = false;
};
