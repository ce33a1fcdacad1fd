// SPDX-License-Identifier: GPL-3.0-or-later
#include "ContentView.h"

#include "Bar.h"
#include "IconButton.h"
#include "LocationAlert.h"
#include "MonthView.h"
#include "Page.h"
#include "QuarterView.h"
#include "SegmentedTabs.h"
#include "TrackingIndicator.h"
#include "TrackingStatus.h"
#include "ViewParts.h"
#include "ViewSettings.h"
#include "WindowId.h"

#include <QApplication>
#include <QEvent>
#include <QGridLayout>
#include <QKeyEvent>
#include <QShortcut>
#include <QStackedWidget>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

// The stored number of the first tab.
constexpr int firstTab = 1;

} // namespace

ContentView::ContentView(const ViewParts& parts, QWidget* parent)
    : QWidget(parent)
    , m_parts(parts)
    , m_status(new TrackingStatus(parts, this))
    , m_column(new QVBoxLayout(this))
    , m_tabs(new SegmentedTabs)
    , m_pages(new QStackedWidget)
{
    m_column->setContentsMargins({});
    m_column->setSpacing(0);
    m_column->addWidget(makeHeader());
    m_column->addWidget(m_pages);
    addShortcuts();
    // What is asked of the system can wait until there is something to see.
    connect(this, &ContentView::painted, m_status, &TrackingStatus::startMonitoring);
    connect(m_status, &TrackingStatus::changed, this, &ContentView::alertIfNeeded);

    m_tabs->setCurrentIndex(std::clamp(parts.viewSettings.selectedTab - firstTab, 0, m_tabs->count() - 1));
    showTab(m_tabs->currentIndex());
    connect(m_tabs, &QTabBar::currentChanged, this, &ContentView::showTab);
}

QWidget* ContentView::makeHeader()
{
    m_tabs->setObjectName("tabs"_L1);
    m_tabs->setAccessibleName(tr("View"));
    m_tabs->addTab(tr("Month"));
    m_tabs->addTab(tr("Quarter"));
    auto* header = new Bar(Qt::BottomEdge);
    auto* toolbar = new QHBoxLayout;
    auto* row = new QGridLayout(header);
    row->setContentsMargins(24, 8, 24, 9);
    row->addWidget(new TrackingIndicator(m_parts, *m_status), 0, 0, Qt::AlignLeft | Qt::AlignVCenter);
    row->addWidget(m_tabs, 0, 1);
    addToolbar(*toolbar);
    row->addLayout(toolbar, 0, 2, Qt::AlignRight | Qt::AlignVCenter);
    // The tabs stand in the middle of the window, whatever is beside them.
    row->setColumnStretch(0, 1);
    row->setColumnStretch(2, 1);
    return header;
}

void ContentView::addToolbar(QHBoxLayout& row)
{
    const auto add = [&](Symbol symbol, const QString& text, WindowId id) {
        auto* button = new IconButton(symbol, text);
        connect(button, &QAbstractButton::clicked, this, [this, id] { Q_EMIT windowRequested(id); });
        row.addWidget(button);
    };
    row.setSpacing(8);
    add(Symbol::DocumentGear, tr("Calendar View Settings"), WindowId::calendarViewSettings);
    add(Symbol::Gear, tr("Settings"), WindowId::settings);
    add(Symbol::Question, tr("Help"), WindowId::help);
}

void ContentView::addShortcuts()
{
    for (int tab = 0; tab < m_tabs->count(); ++tab) {
        auto* shortcut = new QShortcut(QKeySequence(Qt::CTRL | Qt::Key(Qt::Key_1 + tab)), this);
        connect(shortcut, &QShortcut::activated, m_tabs, [this, tab] { m_tabs->setCurrentIndex(tab); });
    }
    const bool isLeftToRight = layoutDirection() == Qt::LeftToRight;
    const std::pair<Qt::Key, Qt::Key> ways[]{{isLeftToRight ? Qt::Key_Left : Qt::Key_Right, Qt::Key_PageUp},
                                             {isLeftToRight ? Qt::Key_Right : Qt::Key_Left, Qt::Key_PageDown}};
    for (const auto& [arrow, key] : ways) {
        auto* shortcut = new QShortcut(QKeySequence(Qt::ALT | arrow), this);
        connect(shortcut, &QShortcut::activated, this, [this, key = key] { turnPage(key); });
    }
}

void ContentView::alertIfNeeded()
{
    // Few people ever see it. Once it is there it knows itself when to be seen.
    if (m_alert == nullptr && m_status->isTracking() && !isAccessGranted(m_status->permission()))
        m_column->insertWidget(1, m_alert = new LocationAlert(m_parts, *m_status, this));
}

void ContentView::turnPage(Qt::Key key)
{
    QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
    keyPressEvent(&event);
}

void ContentView::showDay(QDate date)
{
    auto* page = static_cast<Page*>(m_pages->currentWidget())->widget();
    if (auto* month = qobject_cast<MonthView*>(page))
        month->showDay(date);
    else if (auto* quarter = qobject_cast<QuarterView*>(page))
        quarter->showDay(date);
}

void ContentView::showTab(int index)
{
    m_parts.viewSettings.selectedTab = index + firstTab;
    // A page that goes must not hand the focus, and with it a ring, to whatever comes first on the other.
    if (m_pages->isAncestorOf(focusWidget()))
        m_tabs->setFocus(Qt::OtherFocusReason);
    Page*& page = m_built.at(static_cast<std::size_t>(index));
    if (page == nullptr) {
        page = makePage(index);
        m_pages->addWidget(page);
    }
    m_pages->setCurrentWidget(page);
}

Page* ContentView::makePage(int index)
{
    if (index == 0)
        return new Page(new MonthView(m_parts.context, m_parts.settings, m_parts.viewSettings, m_parts.clock));
    return new Page(new QuarterView(m_parts.context, m_parts.settings, m_parts.viewSettings, m_parts.clock));
}

void ContentView::keyPressEvent(QKeyEvent* event)
{
    // The keys that turn the pages of the calendar mean the same wherever the focus is.
    auto* page = static_cast<Page*>(m_pages->currentWidget());
    if (event->key() == Qt::Key_PageUp || event->key() == Qt::Key_PageDown)
        QApplication::sendEvent(page->widget(), event);
    else
        QWidget::keyPressEvent(event);
}

bool ContentView::event(QEvent* event)
{
    const bool handled = QWidget::event(event);
    if (event->type() == QEvent::Paint && !m_painted) {
        m_painted = true;
        // The children are drawn in the same turn of the event loop.
        QMetaObject::invokeMethod(this, &ContentView::painted, Qt::QueuedConnection);
    }
    return handled;
}
