// SPDX-License-Identifier: GPL-3.0-or-later
#include "Accessibility.h"
#include "Testing.h"
#include "Theme.h"

#include <QApplication>

#include <ctime>

// No outcome may depend on the language, the place or the display of the machine.
int main(int argc, char** argv)
{
    qputenv("TZ", "UTC");
    tzset();
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QLocale::setDefault(testLocale());
    testing::InitGoogleMock(&argc, argv);
    const QApplication application(argc, argv);
    QApplication::setStyle(u"Fusion"_s);
    QApplication::setPalette(paletteFor({}));
    installAccessibleRoles();
    return RUN_ALL_TESTS();
}
