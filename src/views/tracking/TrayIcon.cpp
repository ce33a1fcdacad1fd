// SPDX-License-Identifier: GPL-3.0-or-later
#include "TrayIcon.h"

#include "AppIcon.h"
#include "TrackingStatus.h"
#include "ViewParts.h"

#include <QGuiApplication>
#include <QIconEngine>
#include <QMenu>
#include <QStandardPaths>
#include <QSystemTrayIcon>

using namespace Qt::StringLiterals;

namespace {

// A panel that finds the symbolic icon by its name gives it its own colours. It is shown as a picture where the system
// has none, or the panel asks for no name.
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

TrayIcon::TrayIcon(const ViewParts& parts)
    : m_status(std::make_unique<TrackingStatus>(parts))
    , m_menu(std::make_unique<QMenu>())
    , m_icon(std::make_unique<QSystemTrayIcon>(QIcon(new PanelIcon)))
{
    connect(m_menu->addAction(tr("Open")), &QAction::triggered, this, &TrayIcon::openRequested);
    connect(m_menu->addAction(tr("Run In-Office Check")), &QAction::triggered, this, &TrayIcon::checkRequested);
    m_menu->addSeparator();
    connect(m_menu->addAction(tr("Quit")), &QAction::triggered, this, &TrayIcon::quitRequested);
    m_icon->setContextMenu(m_menu.get());
    connect(m_icon.get(), &QSystemTrayIcon::activated, this, [this](QSystemTrayIcon::ActivationReason reason) {
        if (reason == QSystemTrayIcon::Trigger)
            Q_EMIT openRequested();
    });
    const auto tell = [this] { m_icon->setToolTip(m_status->text()); };
    connect(m_status.get(), &TrackingStatus::changed, this, tell);
    m_status->startMonitoring();
    tell();
    m_icon->show();
}

TrayIcon::~TrayIcon() = default;
