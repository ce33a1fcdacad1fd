// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class LinkButton;

/// The two buttons that lead to the period before and the period after.
class NavigationRow : public QWidget {
    Q_OBJECT

public:
    NavigationRow(const QString& previousText, const QString& nextText, QWidget* parent = nullptr);

    /// At the ends of the calendar there is nowhere to go.
    void setAvailable(bool previous, bool next);

Q_SIGNALS:
    void previousRequested();
    void nextRequested();

private:
    LinkButton* m_previous;
    LinkButton* m_next;
};
