// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class LinkButton;

/// The buttons for the previous and the next period, and the link back to today.
class NavigationRow : public QWidget {
    Q_OBJECT

public:
    NavigationRow(const QString& previousText, const QString& nextText, QWidget* parent = nullptr);

    /// Enables the buttons; at the ends of the calendar one is disabled.
    void setAvailable(bool previous, bool next);
    /// Hidden at first. The owner shows it, beside the name of the period.
    [[nodiscard]] LinkButton* todayLink() { return m_today; }

Q_SIGNALS:
    void previousRequested();
    void nextRequested();
    void todayRequested();

private:
    LinkButton* m_previous;
    LinkButton* m_next;
    LinkButton* m_today;
};
