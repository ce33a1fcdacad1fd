// SPDX-License-Identifier: GPL-3.0-or-later
#include "ContentView.h"

#include "MonthView.h"
#include "QuarterView.h"
#include "SegmentedTabs.h"
#include "Theme.h"
#include "TrackingIndicator.h"
#include "ViewParts.h"
#include "ViewSettings.h"

#include <QApplication>
#include <QEvent>
#include <QGridLayout>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollArea>
#include <QStackedWidget>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize firstSize(534, 860);

// The stored number of the first tab.
constexpr int firstTab = 1;

class Header : public QWidget {
protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        const Theme& theme = themeFor(palette());
        QPainter painter(this);
        painter.fillRect(rect(), theme.card);
        painter.fillRect(0, height() - 1, width(), 1, theme.border);
    }
};

} // namespace

ContentView::ContentView(const ViewParts& parts, QWidget* parent)
    : QWidget(parent)
    , m_parts(parts)
    , m_tabs(new SegmentedTabs)
    , m_pages(new QStackedWidget)
{
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->setSpacing(0);
    column->addWidget(makeHeader());
    column->addWidget(m_pages);
    resize(firstSize);

    m_tabs->setCurrentIndex(std::clamp(parts.viewSettings.selectedTab - firstTab, 0, m_tabs->count() - 1));
    showTab(m_tabs->currentIndex());
    connect(m_tabs, &QTabBar::currentChanged, this, &ContentView::showTab);
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget* /*old*/, QWidget* now) { keepInSight(now); });
}

ContentView::~ContentView()
{
    // The focus moves on while the pages are taken down, when this is no more than a widget.
    disconnect(qApp, nullptr, this, nullptr);
}

QWidget* ContentView::makeHeader()
{
    m_tabs->setObjectName("tabs"_L1);
    m_tabs->setAccessibleName(tr("View"));
    m_tabs->addTab(tr("Month"));
    m_tabs->addTab(tr("Quarter"));
    auto* header = new Header;
    auto* indicator = new TrackingIndicator(m_parts.settings, m_parts.wifiClient, m_parts.locationManager);
    // What it asks the system can wait until there is something to see.
    connect(this, &ContentView::painted, indicator, &TrackingIndicator::startMonitoring);
    auto* row = new QGridLayout(header);
    row->setContentsMargins(32, 8, 32, 9);
    row->addWidget(indicator, 0, 0, Qt::AlignLeft | Qt::AlignVCenter);
    row->addWidget(m_tabs, 0, 1);
    // The tabs stand in the middle of the window, whatever is beside them.
    row->setColumnStretch(0, 1);
    row->setColumnStretch(2, 1);
    return header;
}

void ContentView::showTab(int index)
{
    m_parts.viewSettings.selectedTab = index + firstTab;
    // A page that goes must not hand the focus, and with it a ring, to whatever comes first on the other.
    if (m_pages->isAncestorOf(focusWidget()))
        m_tabs->setFocus(Qt::OtherFocusReason);
    QScrollArea*& page = m_built.at(static_cast<std::size_t>(index));
    if (page == nullptr) {
        page = makePage(index);
        m_pages->addWidget(page);
    }
    m_pages->setCurrentWidget(page);
}

QScrollArea* ContentView::makePage(int index)
{
    auto* scroll = new QScrollArea;
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setWidgetResizable(true);
    if (index == 0)
        scroll->setWidget(new MonthView(m_parts));
    else
        scroll->setWidget(new QuarterView(m_parts));
    // The keys go to the days, and the view passes on those that it has no use for.
    scroll->setFocusPolicy(Qt::NoFocus);
    return scroll;
}

void ContentView::keepInSight(QWidget* focused)
{
    auto* page = static_cast<QScrollArea*>(m_pages->currentWidget());
    // A page that moved under a pressed button would turn the click into a drag.
    if (page->isAncestorOf(focused) && QApplication::mouseButtons() == Qt::NoButton)
        page->ensureWidgetVisible(focused);
}

void ContentView::keyPressEvent(QKeyEvent* event)
{
    // The keys that turn the pages of the calendar mean the same wherever the focus is.
    auto* page = static_cast<QScrollArea*>(m_pages->currentWidget());
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
