// SPDX-License-Identifier: GPL-3.0-or-later
#include "SampleStore.h"

#include <QCoreApplication>

// FillStore <path> <months>
int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    fillStore(arguments.at(1), arguments.at(2).toInt());
}
