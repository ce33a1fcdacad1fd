// SPDX-License-Identifier: GPL-3.0-or-later
#include "FileDialog.h"

#include "ViewSettings.h"

#include <QFileDialog>

QFileDialog& makeFileDialog(const char* name, const QString& title, ViewSettings& viewSettings, QWidget* parent)
{
    auto* dialog = new QFileDialog(parent, title, viewSettings.folderForFiles());
    dialog->setObjectName(QLatin1StringView(name));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    QObject::connect(dialog, &QFileDialog::fileSelected, dialog, [&viewSettings](const QString& path) {
        viewSettings.lastFolder = QFileInfo(path).absolutePath();
    });
    return *dialog;
}
