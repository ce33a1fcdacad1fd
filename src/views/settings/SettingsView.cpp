// SPDX-License-Identifier: GPL-3.0-or-later
#include "SettingsView.h"

#include "Bar.h"
#include "DaysPerWeekGoalView.h"
#include "FocusOrder.h"
#include "Follow.h"
#include "Fonts.h"
#include "GeneralSettingsView.h"
#include "LazyStack.h"
#include "LocationManager.h"
#include "Page.h"
#include "SegmentedTabs.h"
#include "SsidSettingsView.h"

#include <QFocusEvent>
#include <QLabel>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

class LinkLabel : public QLabel {
protected:
    void focusInEvent(QFocusEvent* event) override
    {
        QLabel::focusInEvent(event);
        // By itself a label selects its link, which shows the focus and lets Return open it, at the second Tab.
        const auto reason = event->reason();
        if (reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason)
            QLabel::focusNextPrevChild(reason == Qt::TabFocusReason);
    }
};

} // namespace

SettingsView::SettingsView(AppSettings& settings, WiFiClient& wifiClient, LocationManager& locationManager,
                           InOfficeCheck& check, LaunchAtLogin& launchAtLogin, QWidget* parent)
    : QWidget(parent)
{
    auto* pages = new LazyStack({
        [&settings] { return makeCardPage(new DaysPerWeekGoalView(settings, true)); },
        [&settings, &wifiClient, &locationManager, &check] {
            return makeCardPage(new SsidSettingsView(settings, wifiClient, locationManager, check, true));
        },
        [this, &settings, &launchAtLogin] { return makeGeneralPage(settings, launchAtLogin); },
    });
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->setSpacing(0);
    column->addWidget(makeHeader(pages));
    addLocationLine(*column, locationManager);
    column->addWidget(pages);
    pages->showPage(0);
}

bool SettingsView::focusNextPrevChild(bool next)
{
    return moveFocus(*this, next);
}

QWidget* SettingsView::makeHeader(LazyStack* pages)
{
    auto* tabs = new SegmentedTabs;
    tabs->setObjectName("tabs"_L1);
    tabs->setAccessibleName(tr("Settings page"));
    tabs->addTab(tr("Goals"));
    tabs->addTab(tr("Office Networks"));
    tabs->addTab(tr("General"));
    connect(tabs, &QTabBar::currentChanged, pages, &LazyStack::showPage);
    auto* header = new Bar(Qt::BottomEdge);
    auto* row = new QHBoxLayout(header);
    row->setContentsMargins(24, 8, 24, 9);
    row->addWidget(tabs, 0, Qt::AlignCenter);
    return header;
}

void SettingsView::addLocationLine(QVBoxLayout& column, LocationManager& manager)
{
    auto* line = new LinkLabel;
    line->setWordWrap(true);
    line->setFont(fonts::body(line->font()));
    line->setObjectName("location"_L1);
    line->setContentsMargins(24, 16, 24, 0);
    line->setTextFormat(Qt::RichText);
    line->setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
    line->setText(tr("Please enable location access in %1")
                      .arg(u"<a href=\"settings\">%1</a>"_s.arg(tr("Location Settings").toHtmlEscaped())));
    column.addWidget(line);
    connect(line, &QLabel::linkActivated, &manager, &LocationManager::openLocationSettings);
    follow(manager.locationPermissionStatus, line,
           [line, &manager] { line->setVisible(!isAccessGranted(manager.locationPermissionStatus)); });
}

QWidget* SettingsView::makeGeneralPage(AppSettings& settings, LaunchAtLogin& launchAtLogin)
{
    auto* general = new GeneralSettingsView(settings, launchAtLogin, false);
    connect(general, &GeneralSettingsView::welcomeRequested, this, &SettingsView::welcomeRequested);
    return makeCardPage(general);
}
