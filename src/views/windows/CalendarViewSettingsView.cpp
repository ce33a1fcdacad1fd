// SPDX-License-Identifier: GPL-3.0-or-later
#include "CalendarViewSettingsView.h"

#include "ComboBox.h"
#include "Labels.h"
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
    add(tr("Show Week Numbers"), settings.showWeekNumbers);
    addFirstDay(*rows, settings.firstDayOfWeek);
}

void CalendarViewSettingsView::addFirstDay(QVBoxLayout& rows, QProperty<int>& field)
{
    auto* name = labels::text(tr("First Day of Week"));
    auto* choice = new ComboBox(name->text());
    choice->addItem(tr("Sunday"), static_cast<int>(Qt::Sunday));
    choice->addItem(tr("Monday"), static_cast<int>(Qt::Monday));
    choice->addItem(tr("As the System Has It"), 0);
    choice->setCurrentIndex(choice->findData(field.value()));
    connect(choice, &QComboBox::currentIndexChanged, this, [&field, choice] { field = choice->currentData().toInt(); });
    auto* row = new QHBoxLayout;
    row->addWidget(name, 1);
    row->addWidget(choice);
    rows.addLayout(row);
}
