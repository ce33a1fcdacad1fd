// SPDX-License-Identifier: GPL-3.0-or-later
#include "TrayIcon.h"

#include "AppIcon.h"
#include "TodayEntries.h"
#include "TrackingStatus.h"

#include <QGuiApplication>
#include <QIconEngine>
#include <QMenu>
#include <QStandardPaths>
#include <QSystemTrayIcon>

using namespace Qt::StringLiterals;

namespace {

// A panel recolours a symbolic icon that it finds by name. If none is installed, or the panel does not look for the
// name, it gets the picture.
class PanelIcon : public QIconEngine {
public:
    QString iconName() override
    {
        const auto file = u"icons/hicolor/symbolic/apps/%1.svg"_s.arg(m_name);
        return QStandardPaths::locate(QStandardPaths::GenericDataLocation, file).isEmpty() ? QString() : m_name;
    }
    QList<QSize> availableSizes(QIcon::Mode mode, QIcon::State state) override
    {
        return m_picture.availableSizes(mode, state);
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        return m_picture.pixmap(size, mode, state);
    }
    void paint(QPainter* painter, const QRect& place, QIcon::Mode mode, QIcon::State state) override
    {
        m_picture.paint(painter, place, Qt::AlignCenter, mode, state);
    }
    [[nodiscard]] QIconEngine* clone() const override { return new PanelIcon(*this); }

private:
    const QString m_name = QGuiApplication::desktopFileName() + "-symbolic"_L1;
    const QIcon m_picture = appIcon();
};

} // namespace

TrayIcon::TrayIcon(const AppSettings& settings, WiFiClient& wifiClient, LocationManagerKey& locationManager,
                   DayMarker& marker, const Clock& clock)
    : m_status(std::make_unique<TrackingStatus>(settings, wifiClient, locationManager))
    , m_menu(std::make_unique<QMenu>())
    , m_icon(std::make_unique<QSystemTrayIcon>(QIcon(new PanelIcon)))
{
    connect(m_menu->addAction(tr("Open")), &QAction::triggered, this, &TrayIcon::openRequested);
    connect(m_menu->addAction(tr("Run In-Office Check")), &QAction::triggered, this, &TrayIcon::checkRequested);
    m_menu->addSeparator();
    m_today = std::make_unique<TodayEntries>(*m_menu, marker, clock);
    m_menu->addSeparator();
    connect(m_menu->addAction(tr("Quit")), &QAction::triggered, this, &TrayIcon::quitRequested);
    connect(m_today.get(), &TodayEntries::failed, this, &TrayIcon::openRequested); // whose window says why
    m_icon->setContextMenu(m_menu.get());
    connect(m_icon.get(), &QSystemTrayIcon::activated, this, [this](QSystemTrayIcon::ActivationReason reason) {
        if (reason == QSystemTrayIcon::Trigger)
            Q_EMIT openRequested();
    });
    const auto refresh = [this] { m_icon->setToolTip(tr("Pellory: %1").arg(m_status->text())); };
    connect(m_status.get(), &TrackingStatus::changed, this, refresh);
    m_status->startMonitoring();
    refresh();
    m_icon->show();
}

TrayIcon::~TrayIcon() = default;
