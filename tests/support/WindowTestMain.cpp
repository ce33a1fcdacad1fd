// SPDX-License-Identifier: GPL-3.0-or-later
#include "Accessibility.h"
#include "Theme.h"

#include <QApplication>
#include <QLocale>

#include <gmock/gmock.h>

#include <cstdio>
#include <ctime>
#include <sched.h>

using namespace Qt::StringLiterals;

// No outcome may depend on the language, the place or the display of the machine.
int main(int argc, char** argv)
{
    // No window needs a network. An ordinary user can only leave it together with the other users.
    if (unshare(CLONE_NEWNET) != 0 && unshare(CLONE_NEWUSER | CLONE_NEWNET) != 0)
        std::puts("This system does not let a program leave the network");
    qputenv("TZ", "UTC");
    tzset();
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QLocale::setDefault(QLocale::c());
    QApplication::setStyle(u"Fusion"_s);
    testing::InitGoogleMock(&argc, argv);
    const QApplication application(argc, argv);
    QApplication::setPalette(paletteFor(ColorScheme::Light));
    installAccessibleRoles();
    return RUN_ALL_TESTS();
}
