// SPDX-License-Identifier: GPL-3.0-or-later
#include "ContentView.h"

#include "AppSettings.h"
#include "BackupAlert.h"
#include "BackupService.h"
#include "Bar.h"
#include "Button.h"
#include "DayDetails.h"
#include "FocusOrder.h"
#include "Follow.h"
#include "LazyStack.h"
#include "LocationAlert.h"
#include "LocationManager.h"
#include "LostDataAlert.h"
#include "ModelContext.h"
#include "MonthView.h"
#include "Page.h"
#include "QuarterView.h"
#include "SaveAlert.h"
#include "SegmentedTabs.h"
#include "Toolbar.h"
#include "TrackingIndicator.h"
#include "TrackingPopover.h"
#include "TrackingStatus.h"
#include "UndoLine.h"
#include "ViewParts.h"
#include "ViewSettings.h"
#include "WindowId.h"
#include "WindowSize.h"
#include "YearView.h"

#include <QEvent>
#include <QGridLayout>
#include <QKeyEvent>
#include <QShortcut>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

// The stored number of the first tab.
constexpr int firstTab = 1;
// The width of contents on it.
constexpr int smallScreen = 340;

// These, and the others that the desktop has for the same.
QList<QKeySequence> withDesktopKeys(const QKeySequence& keys, QKeySequence::StandardKey standard)
{
    QList<QKeySequence> all = QKeySequence::keyBindings(standard);
    all.removeAll(keys);
    all.prepend(keys);
    return all;
}

} // namespace

ContentView::ContentView(const ViewParts& parts, QWidget* parent)
    : QWidget(parent)
    , m_parts(parts)
    , m_status(new TrackingStatus(parts.settings, parts.wifiClient, parts.locationManager, this))
    , m_column(new QVBoxLayout(this))
    , m_tabs(new SegmentedTabs)
    , m_pages(new LazyStack({[this] { return makePage<MonthView>(); }, [this] { return makePage<QuarterView>(); },
                             [this] { return makeYearPage(); }}))
    , m_undoLine(new UndoLine(parts.marker, parts.history, parts.clock, *m_pages))
{
    m_column->setContentsMargins({});
    m_column->setSpacing(0);
    m_column->addWidget(makeHeader());
    m_column->addWidget(m_pages);
    addShortcuts();
    // Querying the system can wait until the window is visible.
    connect(this, &ContentView::painted, m_status, &TrackingStatus::startMonitoring);
    connect(m_status, &TrackingStatus::changed, this, &ContentView::alertIfNeeded);
    follow(parts.context.saveState(), this, [this] { alertIfUnsaved(); });
    follow(parts.backups.problem(), this, [this] { alertIfNotBackedUp(); });

    m_tabs->setCurrentIndex(std::clamp(parts.viewSettings.selectedTab - firstTab, 0, m_tabs->count() - 1));
    showTab(m_tabs->currentIndex());
    connect(m_tabs, &QTabBar::currentChanged, this, &ContentView::showTab);
    // So that the first key finds a day.
    page().focusCurrentDay(Qt::OtherFocusReason);
}

QWidget* ContentView::makeHeader()
{
    m_tabs->setObjectName("tabs"_L1);
    m_tabs->setAccessibleName(tr("View"));
    m_tabs->addTab(Symbol::Calendar, tr("Month"));
    m_tabs->addTab(Symbol::Calendar, tr("Quarter"));
    m_tabs->addTab(Symbol::Calendar, tr("Year"));
    auto* header = new Bar(Qt::BottomEdge);
    auto* row = new QGridLayout(header);
    // On a small screen the tabs need some of the room at the sides.
    const int side = widestContents() < smallScreen ? 12 : 24;
    row->setContentsMargins(side, 8, side, 9);
    row->addWidget(makeIndicator(), 0, 0, Qt::AlignLeft | Qt::AlignVCenter);
    row->addWidget(m_tabs, 0, 1);
    row->addWidget(makeToolbar(), 0, 2, Qt::AlignRight | Qt::AlignVCenter);
    // Keeps the tabs in the middle of the window.
    row->setColumnStretch(0, 1);
    row->setColumnStretch(2, 1);
    return header;
}

QWidget* ContentView::makeIndicator()
{
    auto* indicator = new TrackingIndicator(*m_status);
    connect(indicator, &QAbstractButton::clicked, this, [this, indicator] {
        auto* popover = new TrackingPopover(*m_status, m_parts.check, m_parts.clock, indicator);
        connect(popover, &TrackingPopover::setUpRequested, this, &ContentView::setUpRequested);
        popUp(*popover);
    });
    return indicator;
}

QWidget* ContentView::makeToolbar()
{
    auto* toolbar = new Toolbar;
    connect(toolbar, &Toolbar::windowRequested, this, &ContentView::windowRequested);
    connect(toolbar, &Toolbar::undoRequested, m_undoLine, &UndoLine::undo);
    connect(toolbar, &Toolbar::redoRequested, m_undoLine, &UndoLine::redo);
    connect(toolbar, &Toolbar::quitRequested, this, &ContentView::quitRequested);
    connect(toolbar, &Toolbar::menuOpening, this, [this](QMenu& menu) { page().addEntries(menu); });
    return toolbar;
}

void ContentView::addShortcuts()
{
    for (int tab = 0; tab < m_tabs->count(); ++tab) {
        auto* shortcut = new QShortcut(QKeySequence(Qt::CTRL | Qt::Key(Qt::Key_1 + tab)), this);
        connect(shortcut, &QShortcut::activated, this, [this, tab] { focusTab(tab); });
    }
    const bool isLeftToRight = layoutDirection() == Qt::LeftToRight;
    const auto add = [this](QKeyCombination keys, void (CalendarPage::*turn)(Qt::FocusReason)) {
        auto* shortcut = new QShortcut(keys, this);
        connect(shortcut, &QShortcut::activated, this, [this, turn] { (page().*turn)(Qt::ShortcutFocusReason); });
    };
    add(Qt::ALT | (isLeftToRight ? Qt::Key_Left : Qt::Key_Right), &CalendarPage::previous);
    add(Qt::ALT | (isLeftToRight ? Qt::Key_Right : Qt::Key_Left), &CalendarPage::next);
    add(todayKeys, &CalendarPage::showToday);
    const auto addUndo = [this](const QList<QKeySequence>& keys, void (UndoLine::*action)()) {
        auto* shortcut = new QShortcut(this);
        shortcut->setKeys(keys);
        connect(shortcut, &QShortcut::activated, m_undoLine, action);
    };
    addUndo(withDesktopKeys(undoKeys, QKeySequence::Undo), &UndoLine::undo);
    addUndo(withDesktopKeys(redoKeys, QKeySequence::Redo), &UndoLine::redo);
}

void ContentView::alertIfNeeded()
{
    // Few people ever need it. Once built it shows and hides itself.
    if (m_alert != nullptr || !m_status->isTracking() || isAccessGranted(m_status->permission()))
        return;
    m_alert = new LocationAlert(*m_status, m_parts.settings, m_parts.locationManager.defaultValue(), this);
    m_column->insertWidget(1, m_alert);
}

void ContentView::alertIfUnsaved()
{
    if (m_saveAlert != nullptr || m_parts.context.saveState().value().isFine())
        return;
    m_saveAlert = new SaveAlert(m_parts.context, this);
    connect(m_saveAlert, &SaveAlert::reloadRequested, this, &ContentView::reloadRequested);
    // Below the page: a click brings it up, and the next one may be meant for the same day.
    m_column->addWidget(m_saveAlert);
}

void ContentView::alertIfNotBackedUp()
{
    if (m_backupAlert != nullptr || m_parts.backups.problem().value().isEmpty())
        return;
    m_backupAlert = new BackupAlert(m_parts.backups, this);
    m_column->addWidget(m_backupAlert);
}

void ContentView::offerBackup(LostStore how, const BackupFile& backup)
{
    auto* alert = new LostDataAlert(m_parts.backups, how, backup, this);
    connect(alert, &LostDataAlert::declined, this, &ContentView::backupDeclined);
    m_column->addWidget(alert);
}

void ContentView::offerSetUp()
{
    const auto& firstTime = m_parts.settings.firstTime;
    if (m_setUpAlert != nullptr || !firstTime)
        return;
    auto* alert = m_setUpAlert = new AlertCard(this);
    alert->layout()->setContentsMargins(24, 12, 24, 20);
    alert->setTexts(tr("Set-up Not Finished"),
                    tr("Pellory does not check whether you are in the office before its set-up is finished."));
    auto* finish = alert->addButton(u"finishSetUp"_s, tr("Finish Set-up"));
    finish->setProminent(true);
    connect(finish, &QAbstractButton::clicked, this, &ContentView::setUpRequested);
    follow(firstTime, alert, [alert, &firstTime] { alert->setVisible(firstTime); });
    m_column->addWidget(alert);
}

CalendarPage& ContentView::page() const
{
    return *m_pages->currentWidget()->findChild<CalendarPage*>();
}

template <class Calendar> QWidget* ContentView::makePage()
{
    auto* calendar = new Calendar(m_parts.calendar());
    connect(calendar, &GridPage::detailsRequested, this, &ContentView::openDetails);
    connect(calendar, &GridPage::messageRequested, m_undoLine, &UndoLine::showMessage);
    connect(calendar, &GridPage::usualWeekRequested, this, &ContentView::usualWeekRequested);
    return addPage(calendar);
}

QWidget* ContentView::makeYearPage()
{
    auto* year = new YearView(m_parts.calendar());
    connect(year, &YearView::monthOpened, this, &ContentView::openMonth);
    return addPage(year);
}

QWidget* ContentView::addPage(CalendarPage* page)
{
    connect(page, &CalendarPage::popoverRequested, this, [this](Popover* popover) { popUp(*popover); });
    connect(page, &CalendarPage::recordRequested, this, &ContentView::recordRequested);
    return new Page(page);
}

void ContentView::openMonth(const YearMonth& month, Qt::FocusReason reason)
{
    // Before it is shown, or a screen reader would say what is on the page of another month.
    m_pages->page(0).findChild<CalendarPage*>()->showPeriod(month);
    m_tabs->setCurrentIndex(0);
    page().focusCurrentDay(reason);
    if (reason != Qt::MouseFocusReason)
        scrollToFocus();
}

void ContentView::openDetails(const std::shared_ptr<Month>& month, qsizetype index, QWidget* cell)
{
    popUp(*new DayDetails(m_parts.calendar(), m_parts.history, {month, index}, cell));
}

void ContentView::popUp(Popover& popover)
{
    popover.setBlended(m_parts.blendsWindows && m_parts.blendsWindows());
    popover.popUp();
}

void ContentView::showDay(QDate date)
{
    page().showDay(date);
    scrollToFocus();
}

void ContentView::showToday()
{
    page().showToday(Qt::OtherFocusReason);
    scrollToFocus();
}

void ContentView::scrollToFocus()
{
    // A page notices the focus by itself, but only in an active window, and before its first layout does not know where
    // the focus is.
    QMetaObject::invokeMethod(
        this,
        [this] {
            if (focusWidget() != nullptr)
                static_cast<Page*>(m_pages->currentWidget())->reveal(*focusWidget());
        },
        Qt::QueuedConnection);
}

void ContentView::showTab(int index)
{
    m_parts.viewSettings.selectedTab = index + firstTab;
    // A hidden page would pass the focus, and with it a ring, to the first control of the other.
    const bool hadFocus = m_pages->isAncestorOf(focusWidget());
    if (hadFocus)
        m_pages->setFocus(Qt::OtherFocusReason);
    m_pages->showPage(index);
    if (hadFocus)
        page().focusCurrentDay(Qt::MouseFocusReason);
}

void ContentView::focusTab(int index)
{
    setFocus(Qt::OtherFocusReason); // or a day that has the focus already would show no ring
    m_tabs->setCurrentIndex(index);
    page().focusCurrentDay(Qt::ShortcutFocusReason);
    scrollToFocus();
}

bool ContentView::focusNextPrevChild(bool next)
{
    return moveFocus(*this, next);
}

void ContentView::keyPressEvent(QKeyEvent* event)
{
    // Pages turn wherever the focus is.
    switch (event->key()) {
    case Qt::Key_PageUp:
        return page().previous();
    case Qt::Key_PageDown:
        return page().next();
    default:
        QWidget::keyPressEvent(event);
    }
}

bool ContentView::event(QEvent* event)
{
    const bool handled = QWidget::event(event);
    // What was put in the place of the data file by hand is noticed on the way back.
    if (event->type() == QEvent::WindowActivate)
        m_parts.context.checkFile();
    if (event->type() == QEvent::Paint && !m_painted) {
        m_painted = true;
        // The children are drawn in the same turn of the event loop.
        QMetaObject::invokeMethod(this, &ContentView::painted, Qt::QueuedConnection);
    }
    return handled;
}
