// SPDX-License-Identifier: GPL-3.0-or-later
#include "MessageBoxAlerts.h"

#include <QApplication>
#include <QGridLayout>
#include <QMessageBox>
#include <QPushButton>

namespace {

constexpr int textWidth = 440;

void prepare(QMessageBox& box, QMessageBox::Icon icon, const QString& message, const QString& informativeText)
{
    box.setWindowTitle(QApplication::applicationDisplayName());
    box.setIcon(icon);
    // A path in the text could be taken for markup.
    box.setTextFormat(Qt::PlainText);
    box.setText(message);
    box.setInformativeText(informativeText);
    // Otherwise the box is as narrow as its shortest text.
    if (auto* grid = qobject_cast<QGridLayout*>(box.layout()))
        grid->addItem(new QSpacerItem(textWidth, 0), grid->rowCount(), 0, 1, grid->columnCount());
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
    box.exec();
}

bool MessageBoxAlerts::confirmWarning(const QString& message, const QString& informativeText,
                                      const QString& firstButton, const QString& secondButton)
{
    QMessageBox box;
    prepare(box, QMessageBox::Warning, message, informativeText);
    const QPushButton* first = box.addButton(firstButton, QMessageBox::DestructiveRole);
    QPushButton* second = box.addButton(secondButton, QMessageBox::RejectRole);
    // Return and Escape must not destroy anything.
    box.setDefaultButton(second);
    box.setEscapeButton(second);
    box.exec();
    return box.clickedButton() == first;
}
