// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class QFormLayout;
class QLabel;
class TrackingStatus;
struct ViewParts;

/// A short status of the automatic tracking, in a small window below what it speaks of. It deletes itself when it
/// closes.
class TrackingPopover : public QWidget {
    Q_OBJECT

public:
    TrackingPopover(const ViewParts& parts, TrackingStatus& status, QWidget* anchor);

    void popUp();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void refresh();
    [[nodiscard]] QString timeText(const QDateTime& time) const;

    const ViewParts& m_parts;
    TrackingStatus& m_status;
    QLabel* m_title;
    QFormLayout* m_rows;
    QLabel* m_wifi;
    QLabel* m_location;
    QLabel* m_lastCheck;
    QLabel* m_nextCheck;
};
