// SPDX-License-Identifier: GPL-3.0-or-later
#include "TrayIcon.h"

#include "Theme.h"
#include "TrackingStatus.h"
#include "ViewParts.h"

#include <QMenu>
#include <QPainter>
#include <QSystemTrayIcon>

namespace {

// A calendar page that can be read on a light panel as on a dark one.
QPixmap picture(int size)
{
    constexpr qreal grid = 16.0;
    const Theme& theme = themeFor(ColorScheme::Light);
    QPixmap pixmap(size, size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(size / grid, size / grid);
    painter.setPen(Qt::NoPen);
    painter.setBrush(theme.inOffice);
    painter.drawRoundedRect(QRectF(1, 1, 14, 14), 3.5, 3.5);
    painter.setBrush(Qt::white);
    for (const QPointF day : {QPointF(4, 5), {7, 5}, {10, 5}, {4, 9}, {7, 9}})
        painter.drawRoundedRect(QRectF(day, QSizeF(2, 2)), 0.6, 0.6);
    return pixmap;
}

QIcon makeIcon()
{
    QIcon icon;
    for (const int size : {16, 22, 24, 32, 48})
        icon.addPixmap(picture(size));
    return icon;
}

} // namespace

TrayIcon::TrayIcon(const ViewParts& parts)
    : m_status(std::make_unique<TrackingStatus>(parts))
    , m_menu(std::make_unique<QMenu>())
    , m_icon(std::make_unique<QSystemTrayIcon>(makeIcon()))
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
