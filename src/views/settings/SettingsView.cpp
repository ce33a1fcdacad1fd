// SPDX-License-Identifier: GPL-3.0-or-later
#include "SettingsView.h"

#include "Accessibility.h"
#include "Bar.h"
#include "CountingPage.h"
#include "DataPage.h"
#include "FocusOrder.h"
#include "Follow.h"
#include "Fonts.h"
#include "GeneralSettingsView.h"
#include "GoalsPage.h"
#include "LazyStack.h"
#include "LocationManager.h"
#include "Page.h"
#include "SideTabs.h"
#include "SsidSettingsView.h"

#include <QFocusEvent>
#include <QLabel>
#include <QShortcut>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr QMargins sideMargins(8, 12, 9, 12);
// Of the pages in the list.
constexpr int countingPage = 1;

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

SettingsView::SettingsView(const SettingsParts& parts, QWidget* parent)
    : QWidget(parent)
    , m_parts(parts)
    , m_tabs(new SideTabs)
    , m_pages(new LazyStack({
          [parts] {
              return new GoalsPage(parts.settings, parts.counting, parts.context, parts.clock, parts.viewSettings);
          },
          [parts] { return new CountingPage(parts.counting, parts.clock, parts.viewSettings); },
          [parts] {
              return makeCardPage(
                  new SsidSettingsView(parts.settings, parts.wifiClient, parts.locationManager, parts.check, true));
          },
          [this] { return makeGeneralPage(); },
          [parts] {
              return new DataPage(parts.backups, parts.context, parts.counting, parts.clock, parts.viewSettings);
          },
      }))
{
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins({});
    row->setSpacing(0);
    row->addWidget(makeSide());
    auto* column = new QVBoxLayout;
    column->setSpacing(0);
    addLocationLine(*column);
    column->addWidget(m_pages);
    row->addLayout(column, 1);
    addShortcuts();
    showPage(0);
}

QWidget* SettingsView::makeSide()
{
    m_tabs->setObjectName("tabs"_L1);
    m_tabs->setAccessibleName(tr("Settings page"));
    m_tabs->addTab(Symbol::Target, tr("Goals"));
    m_tabs->addTab(Symbol::Tally, tr("Counting"));
    m_tabs->addTab(Symbol::Wifi, tr("Office Networks"));
    m_tabs->addTab(Symbol::Gear, tr("General"));
    m_tabs->addTab(Symbol::Drawer, tr("Data"));
    connect(m_tabs, &QTabBar::currentChanged, this, &SettingsView::showPage);
    auto* side = new Bar(Qt::RightEdge);
    auto* column = new QVBoxLayout(side);
    column->setContentsMargins(sideMargins);
    column->addWidget(m_tabs);
    column->addStretch();
    return side;
}

void SettingsView::addShortcuts()
{
    const auto add = [this](const QKeySequence& keys, int step) {
        connect(new QShortcut(keys, this), &QShortcut::activated, m_tabs, [this, step] {
            m_tabs->setCurrentIndex((m_tabs->currentIndex() + step + m_tabs->count()) % m_tabs->count());
            if (!m_tabs->hasFocus()) // or the tab is said
                announce(*m_tabs, m_tabs->tabText(m_tabs->currentIndex()));
        });
    };
    add(Qt::CTRL | Qt::Key_PageDown, 1);
    add(Qt::CTRL | Qt::Key_Tab, 1);
    add(Qt::CTRL | Qt::Key_PageUp, -1);
    add(Qt::CTRL | Qt::SHIFT | Qt::Key_Tab, -1);
}

void SettingsView::showUsualWeek()
{
    m_tabs->setCurrentIndex(countingPage);
    static_cast<CountingPage*>(m_pages->currentWidget())->showUsualWeek();
}

void SettingsView::showPage(int index)
{
    m_pages->showPage(index);
    arrange();
}

// On a small screen the pages need the room of the names.
void SettingsView::arrange()
{
    const int side = m_tabs->widthWithNames() + sideMargins.left() + sideMargins.right();
    m_tabs->setNamesShown(width() >= side + m_pages->minimumSizeHint().width());
}

bool SettingsView::focusNextPrevChild(bool next)
{
    return moveFocus(*this, next);
}

void SettingsView::resizeEvent(QResizeEvent* event)
{
    arrange();
    QWidget::resizeEvent(event);
}

void SettingsView::addLocationLine(QVBoxLayout& column)
{
    LocationManager& manager = m_parts.locationManager;
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

QWidget* SettingsView::makeGeneralPage()
{
    auto* general = new GeneralSettingsView(m_parts.settings, m_parts.launchAtLogin, false);
    connect(general, &GeneralSettingsView::welcomeRequested, this, &SettingsView::welcomeRequested);
    return makeCardPage(general);
}
