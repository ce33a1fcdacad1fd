// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class ViewSettings;

/// The switches of what the calendar views show. A change is stored, and seen, at once.
class CalendarViewSettingsView : public QWidget {
    Q_OBJECT

public:
    explicit CalendarViewSettingsView(ViewSettings& settings, QWidget* parent = nullptr);
};
