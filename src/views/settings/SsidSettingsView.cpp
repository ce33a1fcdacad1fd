// SPDX-License-Identifier: GPL-3.0-or-later
#include "SsidSettingsView.h"

#include "AppSettings.h"
#include "Button.h"
#include "Follow.h"
#include "IconButton.h"
#include "InOfficeCheck.h"
#include "Labels.h"
#include "LocationManager.h"
#include "NetworkList.h"
#include "Rows.h"
#include "Switch.h"
#include "TextField.h"
#include "WiFiClient.h"
#include "WiFiMonitor.h"

#include <QPointer>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int intervalWidth = 75;
constexpr qint64 shortestInterval = 1;
constexpr qint64 longestInterval = 24 * 60;

QHBoxLayout* headingRow(const QString& text, QWidget* button)
{
    auto* row = new QHBoxLayout;
    row->addWidget(labels::strong(text), 1);
    row->addWidget(button);
    return row;
}

std::optional<qint64> acceptedMinutes(const QString& text)
{
    bool isNumber = false;
    const qint64 minutes = QLocale().toLongLong(text, &isNumber);
    return isNumber && minutes >= shortestInterval && minutes <= longestInterval ? std::optional(minutes)
                                                                                 : std::nullopt;
}

QStringList sortedNames(const QList<WiFiNetwork>& networks)
{
    QStringList names;
    for (const WiFiNetwork& network : networks) {
        if (network.ssid)
            names.append(*network.ssid);
    }
    names.removeDuplicates();
    names.sort();
    return names;
}

} // namespace

SsidSettingsView::SsidSettingsView(AppSettings& settings, WiFiClient& wifiClient, LocationManager& locationManager,
                                   InOfficeCheck& check, bool headerEnabled, QWidget* parent)
    : QWidget(parent)
    , m_settings(settings)
    , m_wifiClient(wifiClient)
    , m_locationManager(locationManager)
    , m_check(check)
    , m_wifiMonitor(std::make_unique<WiFiMonitor>(wifiClient))
    , m_wifiWarning(labels::strong(tr("Wi-Fi tracking is enabled, but Wi-Fi is turned off.")))
    , m_wifiAdvice(labels::strong(tr("Turn on Wi-Fi in MacOS to allow tracking.")))
    , m_locationWarning(labels::strong(tr("Wi-Fi tracking is enabled, but location tracking is turned off.")))
    , m_selected(new NetworkList([](const QString&) -> NetworkList::Choice {
        return {Symbol::Cross, tr("Remove %1", "network")};
    }))
    , m_inRange(new NetworkList([&settings](const QString& ssid) -> NetworkList::Choice {
        if (settings.inOfficeSsids.value().contains(ssid))
            return {Symbol::Check, tr("%1 is an office network"), false};
        return {Symbol::Plus, tr("Add %1", "network")};
    }))
    , m_scan(new Button(tr("Scan")))
{
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->setSpacing(8);
    addTracking(*column, headerEnabled);
    addInterval(*column);
    addSelectedNetworks(*column);
    addCustomNetwork(*column);
    addNetworksInRange(*column);

    const auto show = [this] { refresh(); };
    follow(settings.wifiTrackingEnabled, this, show);
    follow(settings.inOfficeSsids, this, show);
    follow(m_wifiMonitor->isWiFiEnabled, m_wifiMonitor.get(), show);
    follow(locationManager.locationPermissionStatus, this, show);
}

SsidSettingsView::~SsidSettingsView() = default;

void SsidSettingsView::addTracking(QVBoxLayout& column, bool headerEnabled)
{
    if (headerEnabled)
        column.addWidget(labels::heading(tr("Automatic In Office Tracking")));
    auto* tracking = new Switch(tr("Enable Automatic Tracking"));
    bindSwitch(tracking, m_settings.wifiTrackingEnabled);
    column.addWidget(tracking);
    for (QLabel* warning : {m_wifiWarning, m_wifiAdvice, m_locationWarning}) {
        warning->setForegroundRole(QPalette::BrightText);
        column.addWidget(labels::announced(warning));
    }
}

void SsidSettingsView::addInterval(QVBoxLayout& column)
{
    auto& minutes = m_settings.checkEveryInMinutes;
    auto* field = new TextField(tr("Check Every (mins)"));
    field->setObjectName("checkEveryInMinutes"_L1);
    field->setFixedWidth(intervalWidth);
    field->setAlignment(Qt::AlignRight);
    follow(minutes, field, [field, &minutes] {
        if (!field->hasFocus())
            field->setText(QLocale().toString(minutes.value()));
    });
    auto* refusal = labels::error(
        tr("Minutes must be a whole number between %L1 and %L2").arg(shortestInterval).arg(longestInterval));
    refusal->hide();
    connect(field, &QLineEdit::textChanged, refusal, [field, refusal](const QString& text) {
        refusal->setVisible(field->isModified() && !acceptedMinutes(text));
    });
    // What is refused stays, with the message.
    connect(field, &QLineEdit::editingFinished, field, [field, &minutes] {
        const auto accepted = acceptedMinutes(field->text());
        if (!accepted)
            return;
        minutes = *accepted;
        field->setText(QLocale().toString(minutes.value()));
    });

    auto* row = new QHBoxLayout;
    row->setSpacing(8);
    row->addWidget(labels::singleLine(labels::text(tr("Check if in office every"))));
    row->addWidget(field);
    row->addWidget(labels::singleLine(labels::text(tr("minutes"))));
    row->addStretch();
    column.addLayout(row);
    column.addWidget(refusal);
    column.addWidget(labels::dim(tr("If any of these networks are in range, you will be counted as in-office.")));
}

void SsidSettingsView::addSelectedNetworks(QVBoxLayout& column)
{
    auto* check = new Button(tr("Run In-Office Check"));
    check->setObjectName("runCheck"_L1);
    m_selected->setObjectName("selectedNetworks"_L1);
    column.addSpacing(8);
    column.addLayout(headingRow(tr("In-Office Networks"), check));
    column.addWidget(m_selected);
    connect(check, &QAbstractButton::clicked, this, [this] { m_check.checkNow(); });
    connect(m_selected, &NetworkList::chosen, this, &SsidSettingsView::remove);
}

void SsidSettingsView::addCustomNetwork(QVBoxLayout& column)
{
    auto* field = new TextField(tr("Add custom network"));
    field->setObjectName("customNetwork"_L1);
    auto* add = new IconButton(Symbol::Plus, tr("Add custom network"));
    add->setObjectName("addCustomNetwork"_L1);
    column.addLayout(makeEntryRow(field, add, [this](const QString& text) {
        append(text);
        return true;
    }));
}

void SsidSettingsView::addNetworksInRange(QVBoxLayout& column)
{
    m_scan->setObjectName("scan"_L1);
    m_inRange->setObjectName("networksInRange"_L1);
    column.addSpacing(8);
    column.addLayout(headingRow(tr("In-Range Networks"), m_scan));
    column.addWidget(labels::dim(tr("These networks are currently in range of your device.")));
    column.addWidget(m_inRange);
    connect(m_scan, &QAbstractButton::clicked, this, &SsidSettingsView::scan);
    // The button of a network that is in the list already is disabled.
    connect(m_inRange, &NetworkList::chosen, this, &SsidSettingsView::append);
}

void SsidSettingsView::refresh()
{
    const bool isTracking = m_settings.wifiTrackingEnabled;
    const bool isOff = isTracking && !m_wifiMonitor->isWiFiEnabled;
    const bool isGranted = isAccessGranted(m_locationManager.locationPermissionStatus);
    m_wifiWarning->setVisible(isOff);
    m_wifiAdvice->setVisible(isOff);
    m_locationWarning->setVisible(isTracking && !isGranted);
    m_selected->setNetworks(m_settings.inOfficeSsids, tr("No networks selected"));
    m_inRange->setNetworks(m_isScanning ? QStringList() : m_wifiNetworks, emptyListText());
    m_scan->setText(m_isScanning ? tr("Scanning...") : tr("Scan"));
    m_scan->setSymbol(m_isScanning ? std::nullopt : std::optional(Symbol::ArrowClockwise));
    enableScan(!m_isScanning && isGranted);
}

void SsidSettingsView::enableScan(bool isEnabled)
{
    // Left alone, the focus would move on to a button that does something else.
    if (!isEnabled && window()->focusWidget() == m_scan)
        setFocus(Qt::OtherFocusReason);
    m_scan->setEnabled(isEnabled);
    if (isEnabled && window()->focusWidget() == this)
        m_scan->setFocus(Qt::TabFocusReason);
}

QString SsidSettingsView::emptyListText() const
{
    if (m_isScanning)
        return tr("Scanning for networks...");
    return m_wifiMonitor->isWiFiEnabled ? tr("No networks found")
                                        : tr("Wi-Fi disabled. Turn on Wi-Fi in MacOS to allow scanning.");
}

void SsidSettingsView::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    if (std::exchange(m_firstScan, false))
        scan();
}

void SsidSettingsView::append(const QString& ssid)
{
    m_settings.inOfficeSsids = m_settings.inOfficeSsids.value() + QStringList(ssid);
}

void SsidSettingsView::remove(const QString& ssid)
{
    QStringList networks = m_settings.inOfficeSsids;
    networks.removeAll(ssid);
    m_settings.inOfficeSsids = networks;
}

QCoro::Task<> SsidSettingsView::scan()
{
    const QPointer self(this);
    m_isScanning = true;
    refresh();
    QStringList names;
    try {
        const auto interface = co_await m_wifiClient.readyInterface();
        if (interface && self) {
            const auto networks = co_await m_wifiClient.scanForNetworks(interface->name);
            names = sortedNames(networks);
        }
    } catch (const std::exception&) {
        // A failed scan is shown as an empty list.
    }
    if (!self)
        co_return;
    m_wifiNetworks = names;
    m_isScanning = false;
    refresh();
}
