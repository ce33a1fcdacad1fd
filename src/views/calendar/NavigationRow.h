// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class LinkButton;

/// The buttons for the previous and the next period.
class NavigationRow : public QWidget {
    Q_OBJECT

public:
    NavigationRow(const QString& previousText, const QString& nextText, QWidget* parent = nullptr);

    /// Enables the buttons; at the ends of the calendar one is disabled.
    void setAvailable(bool previous, bool next);

Q_SIGNALS:
    void previousRequested();
    void nextRequested();

private:
    LinkButton* m_previous;
    LinkButton* m_next;
};
