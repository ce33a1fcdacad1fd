// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QProperty>
#include <QWidget>

class QVBoxLayout;
class ViewSettings;

/// The choices of what the calendar views show. A change is stored, and seen, at once.
class CalendarViewSettingsView : public QWidget {
    Q_OBJECT

public:
    explicit CalendarViewSettingsView(ViewSettings& settings, QWidget* parent = nullptr);

private:
    void addFirstDay(QVBoxLayout& rows, QProperty<int>& field);
};
