// SPDX-License-Identifier: GPL-3.0-or-later
#include "AboutView.h"

#include "AppIcon.h"
#include "Labels.h"

#include <QCoreApplication>
#include <QGridLayout>

AboutView::AboutView(QWidget* parent)
    : SpokenGroup(0, parent)
{
    constexpr int iconSize = 32;
    auto* icon = new QLabel;
    icon->setPixmap(appIcon().pixmap(iconSize));
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins({});
    grid->setHorizontalSpacing(16);
    grid->setColumnStretch(1, 1);
    grid->addWidget(icon, 0, 0, 2, 1, Qt::AlignTop);
    QStringList spoken;
    const auto add = [&](QLabel* line) {
        grid->addWidget(line, grid->count() - 1, 1);
        spoken.append(line->text());
    };
    add(labels::heading(QCoreApplication::applicationName()));
    add(labels::dim(tr("Version %1").arg(QCoreApplication::applicationVersion())));
    add(labels::text(tr("A calendar of your days in the office")));
    add(labels::text(tr("Free software under the GNU General Public License, version 3 or later. It comes without any "
                        "warranty.")));
    const QString title = spoken.takeFirst();
    setSpokenText(title, spoken);
}
