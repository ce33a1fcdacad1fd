// SPDX-License-Identifier: GPL-3.0-or-later
#include <QCoreApplication>
#include <QLocale>

#include <gmock/gmock.h>

// No outcome may depend on the language or the place of the machine.
int main(int argc, char** argv)
{
    qputenv("TZ", "UTC");
    QLocale::setDefault(QLocale::c());
    testing::InitGoogleMock(&argc, argv);
    const QCoreApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
