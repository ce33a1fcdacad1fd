// SPDX-License-Identifier: GPL-3.0-or-later
#include "CalendarPage.h"

#include "Accessibility.h"
#include "Clock.h"
#include "DayMarker.h"
#include "Labels.h"
#include "LinkButton.h"
#include "NavigationRow.h"
#include "StoreError.h"
#include "WindowSize.h"

#include <QKeyEvent>
#include <QLabel>
#include <QLoggingCategory>
#include <QMenu>
#include <QVBoxLayout>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

Q_LOGGING_CATEGORY(logCalendar, "pellory.calendar", QtInfoMsg)

constexpr int cardSpacing = 16;

} // namespace

CalendarPage::CalendarPage(const CalendarParts& parts, const QString& errorText, QWidget* parent)
    : QWidget(parent)
    , m_parts(parts)
    , m_today(parts.clock.today())
    , m_error(labels::announced(new QLabel(errorText)))
    , m_contents(new QWidget)
    , m_column(new QVBoxLayout(m_contents))
{
    m_error->setObjectName("error"_L1);
    m_error->setAlignment(Qt::AlignCenter);
    m_column->setContentsMargins({});
    m_column->setSpacing(cardSpacing);
    auto* page = new QVBoxLayout(this);
    page->setContentsMargins(pageMargins);
    page->addWidget(m_error);
    page->addWidget(m_contents);
    page->addStretch();
    connect(&parts.clock, &Clock::dayChanged, this, &CalendarPage::followToday);
}

void CalendarPage::connectNavigation(NavigationRow& navigation)
{
    m_navigation = &navigation;
    connect(m_navigation, &NavigationRow::previousRequested, this, [this] { previous(Qt::MouseFocusReason); });
    connect(m_navigation, &NavigationRow::nextRequested, this, [this] { next(Qt::MouseFocusReason); });
    connect(m_navigation, &NavigationRow::todayRequested, this, [this] {
        // The link is about to be hidden.
        showToday(m_navigation->todayLink()->hasFocus() ? Qt::TabFocusReason : Qt::OtherFocusReason);
    });
}

void CalendarPage::previous(Qt::FocusReason reason)
{
    turn(monthBefore(), reason);
}

void CalendarPage::next(Qt::FocusReason reason)
{
    turn(monthAfter(), reason);
}

void CalendarPage::turn(const std::optional<YearMonth>& month, Qt::FocusReason reason)
{
    if (!month)
        return;
    turnTo(*month, reason);
    if (isLoaded() && !focusedDate().isValid()) // or the day is said
        announce(*this, title());
}

void CalendarPage::turnTo(const YearMonth& month, Qt::FocusReason /*reason*/)
{
    showPeriod(month);
}

void CalendarPage::showPeriod(const YearMonth& month)
{
    m_month = month;
    const bool isLoaded = tryToLoad();
    m_retry.setNeeded(!isLoaded);
    m_error->setVisible(!isLoaded);
    m_contents->setVisible(isLoaded);
    if (!isLoaded)
        return;
    m_navigation->setAvailable(monthBefore().has_value(), monthAfter().has_value());
    m_navigation->todayLink()->setVisible(!isShown(m_today));
}

bool CalendarPage::tryToLoad()
{
    try {
        load();
        return true;
    } catch (const StoreError& error) {
        if (m_error->isHidden()) // the first time
            qCWarning(logCalendar, "Cannot load a month: %s", error.what());
        return false;
    }
}

void CalendarPage::showDay(QDate date, Qt::FocusReason reason)
{
    if (date.year() < firstYear || date.year() > lastYear)
        return;
    if (!isShown(date) || !isLoaded())
        showPeriod({date.year(), date.month()});
    if (isLoaded())
        focusDay(date, reason);
}

void CalendarPage::showToday(Qt::FocusReason reason)
{
    showDay(m_today, reason);
}

void CalendarPage::focusCurrentDay(Qt::FocusReason reason)
{
    if (isLoaded())
        focusCurrent(reason);
}

void CalendarPage::addEntries(QMenu& menu)
{
    if (!isLoaded())
        return;
    const QAction* record = menu.addAction(tr("Save Record…"));
    connect(record, &QAction::triggered, this, [this] { Q_EMIT recordRequested(span()); });
}

void CalendarPage::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_PageUp:
        return previous();
    case Qt::Key_PageDown:
        return next();
    default:
        QWidget::keyPressEvent(event);
    }
}

void CalendarPage::followToday()
{
    const QDate before = std::exchange(m_today, m_parts.clock.today());
    if (!isShown(before) || isShown(m_today))
        m_navigation->todayLink()->setVisible(!isShown(m_today));
    else if (focusedDate().isValid())
        showDay(m_today, Qt::OtherFocusReason);
    else
        showPeriod({m_today.year(), m_today.month()});
}
