// SPDX-License-Identifier: GPL-3.0-or-later
#include "SettingsView.h"

#include "Bar.h"
#include "DaysPerWeekGoalView.h"
#include "Follow.h"
#include "GeneralSettingsView.h"
#include "Labels.h"
#include "LocationManager.h"
#include "Page.h"
#include "SegmentedTabs.h"
#include "SsidSettingsView.h"
#include "ViewParts.h"

#include <QStackedWidget>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

SettingsView::SettingsView(const ViewParts& parts, QWidget* parent)
    : QWidget(parent)
    , m_parts(parts)
    , m_tabs(new SegmentedTabs)
    , m_location(labels::text({}))
    , m_pages(new QStackedWidget)
{
    m_tabs->setObjectName("tabs"_L1);
    m_tabs->setAccessibleName(tr("Settings page"));
    m_tabs->addTab(tr("Goals"));
    m_tabs->addTab(tr("Office Networks"));
    m_tabs->addTab(tr("General"));
    auto* header = new Bar(Qt::BottomEdge);
    auto* row = new QHBoxLayout(header);
    row->setContentsMargins(24, 8, 24, 9);
    row->addWidget(m_tabs, 0, Qt::AlignCenter);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->setSpacing(0);
    column->addWidget(header);
    column->addWidget(m_location);
    column->addWidget(m_pages);
    addLocationLine();
    connect(m_tabs, &QTabBar::currentChanged, this, &SettingsView::showPage);
    showPage(0);
}

void SettingsView::addLocationLine()
{
    m_location->setObjectName("location"_L1);
    m_location->setContentsMargins(24, 16, 24, 0);
    m_location->setTextFormat(Qt::RichText);
    m_location->setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
    m_location->setText(tr("Please enable location access in %1")
                            .arg(u"<a href=\"settings\">%1</a>"_s.arg(tr("Location Settings").toHtmlEscaped())));
    LocationManager& manager = m_parts.locationManager.defaultValue();
    connect(m_location, &QLabel::linkActivated, &manager, &LocationManager::openLocationSettings);
    follow(manager.locationPermissionStatus, m_location,
           [this, &manager] { m_location->setVisible(!isAccessGranted(manager.locationPermissionStatus)); });
}

void SettingsView::showPage(int index)
{
    QWidget*& page = m_built.at(static_cast<std::size_t>(index));
    if (page == nullptr) {
        page = makePage(index);
        m_pages->addWidget(page);
    }
    m_pages->setCurrentWidget(page);
}

QWidget* SettingsView::makePage(int index)
{
    switch (index) {
    case 0:
        return makeCardPage(new DaysPerWeekGoalView(m_parts.settings, true));
    case 1:
        return makeCardPage(new SsidSettingsView(m_parts, true));
    default:
        auto* general = new GeneralSettingsView(m_parts, false);
        connect(general, &GeneralSettingsView::welcomeRequested, this, &SettingsView::welcomeRequested);
        return makeCardPage(general);
    }
}
