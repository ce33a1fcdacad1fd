// SPDX-License-Identifier: GPL-3.0-or-later
#include <QApplication>
#include <QMainWindow>

// What any program with a window costs: Pellory's window with nothing in it.
int main(int argc, char* argv[])
{
    QApplication::setStyle(QStringLiteral("Fusion"));
    const QApplication application(argc, argv);
    QMainWindow window;
    window.resize(534, 860);
    window.show();
    return QApplication::exec();
}
