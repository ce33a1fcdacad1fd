// SPDX-License-Identifier: GPL-3.0-or-later
#include "Testing.h"

#include <QCoreApplication>

// No outcome may depend on the language or the place of the machine.
int main(int argc, char** argv)
{
    qputenv("TZ", "UTC");
    QLocale::setDefault(testLocale());
    testing::InitGoogleMock(&argc, argv);
    const QCoreApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
