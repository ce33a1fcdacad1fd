// SPDX-License-Identifier: GPL-3.0-or-later
#include "CalendarViewSettingsView.h"

#include "Switch.h"
#include "ViewSettings.h"

#include <QVBoxLayout>

CalendarViewSettingsView::CalendarViewSettingsView(ViewSettings& settings, QWidget* parent)
    : QWidget(parent)
{
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins({});
    rows->setSpacing(10);
    const auto add = [rows](const QString& text, QProperty<bool>& field) {
        auto* toggle = new Switch(text);
        bindSwitch(toggle, field);
        rows->addWidget(toggle);
    };
    add(tr("Show Progress Trackers"), settings.showProgressBars);
    add(tr("Show Quarter Stats"), settings.showQuarterStats);
    add(tr("Show Month Stats"), settings.showMonthStats);
    add(tr("Show \"Will be In Office\" in Progress Tracker"), settings.showWillBeInOfficeStats);
    add(tr("Show day status on hover"), settings.showStatusLabelOnHover);
    add(tr("Show Unmarked Workdays"), settings.showUnmarkedWorkdays);
}
