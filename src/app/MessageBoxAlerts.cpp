// SPDX-License-Identifier: GPL-3.0-or-later
#include "MessageBoxAlerts.h"

#include "AppIcon.h"
#include "Button.h"
#include "Fonts.h"
#include "Theme.h"

#include <QApplication>
#include <QGridLayout>
#include <QLabel>
#include <QMessageBox>
#include <QPainter>

using namespace Qt::StringLiterals;

namespace {

constexpr int textWidth = 440;
constexpr int iconSize = 48;
constexpr QRectF badgePlace(26.0, 26.0, 20.0, 20.0);

// The program's icon, with a badge for what is serious.
QPixmap iconFor(QMessageBox::Icon kind, const QMessageBox& box)
{
    const qreal ratio = box.devicePixelRatioF();
    QPixmap pixmap(QSize(iconSize, iconSize) * ratio);
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    const QRect whole(0, 0, iconSize, iconSize);
    const QPixmap icon = QIcon::fromTheme(QGuiApplication::desktopFileName(), appIcon()).pixmap(whole.size(), ratio);
    painter.drawPixmap(whole, icon, icon.rect());
    if (kind == QMessageBox::Information)
        return pixmap;
    const Theme& theme = themeFor(box.palette());
    const QColor color = kind == QMessageBox::Critical ? theme.outOfOffice : theme.prediction;
    painter.setPen(QPen(theme.page, 2.0));
    painter.setBrush(color);
    painter.drawEllipse(badgePlace);
    painter.setPen(readableTextOn(color));
    QFont font = fonts::scaled(box.font(), 1.0, QFont::Bold);
    font.setPixelSize(15);
    painter.setFont(font);
    painter.drawText(badgePlace, Qt::AlignCenter, u"!"_s);
    return pixmap;
}

void prepare(QMessageBox& box, QMessageBox::Icon kind, const QString& message, const QString& informativeText)
{
    box.setWindowTitle(QApplication::applicationDisplayName());
    box.setWindowIcon(appIcon());
    box.setIcon(kind);
    box.setIconPixmap(iconFor(kind, box));
    // A path in the text could be taken for markup.
    box.setTextFormat(Qt::PlainText);
    box.setText(message);
    box.setInformativeText(informativeText);
    if (auto* label = box.findChild<QLabel*>("qt_msgbox_label"_L1))
        label->setFont(fonts::scaled(box.font(), 1.25, QFont::Bold));
    if (auto* label = box.findChild<QLabel*>("qt_msgbox_informativelabel"_L1))
        label->setFont(fonts::body(box.font()));
    if (auto* grid = qobject_cast<QGridLayout*>(box.layout())) {
        grid->setContentsMargins(24, 24, 24, 20);
        grid->setHorizontalSpacing(12);
        grid->setVerticalSpacing(10);
        // Otherwise the box is as narrow as its shortest text.
        grid->addItem(new QSpacerItem(textWidth, 0), grid->rowCount(), 0, 1, grid->columnCount());
    }
}

Button* addButton(QMessageBox& box, const QString& text, QMessageBox::ButtonRole role)
{
    auto* button = new Button(text);
    box.addButton(button, role);
    return button;
}

} // namespace

std::shared_ptr<void> MessageBoxAlerts::showNotice(const QString& message, const QString& informativeText)
{
    const auto box = std::make_shared<QMessageBox>();
    prepare(*box, QMessageBox::Information, message, informativeText);
    box->setStandardButtons(QMessageBox::NoButton);
    box->show();
    return box;
}

void MessageBoxAlerts::showCritical(const QString& message, const QString& informativeText)
{
    QMessageBox box;
    prepare(box, QMessageBox::Critical, message, informativeText);
    Button* dismiss = addButton(box, tr("OK"), QMessageBox::AcceptRole);
    box.setDefaultButton(dismiss);
    box.setEscapeButton(dismiss);
    box.exec();
}

bool MessageBoxAlerts::confirmWarning(const QString& message, const QString& informativeText,
                                      const QString& firstButton, const QString& secondButton)
{
    QMessageBox box;
    prepare(box, QMessageBox::Warning, message, informativeText);
    const Button* first = addButton(box, firstButton, QMessageBox::DestructiveRole);
    Button* second = addButton(box, secondButton, QMessageBox::RejectRole);
    // Return and Escape must not destroy anything.
    box.setDefaultButton(second);
    box.setEscapeButton(second);
    box.exec();
    return box.clickedButton() == first;
}
