// SPDX-License-Identifier: GPL-3.0-or-later
#include <QApplication>
#include <QDBusConnection>
#include <QLabel>
#include <QMainWindow>

#include <sqlite3.h>

// Ingredients <store>
//
// What the ingredients of Pellory cost any program: a window of its size with a line of text, an open store, and a
// connection to each bus.

namespace {

void openStore(const char* path)
{
    sqlite3* store = nullptr;
    // SQLite does not read the file before the first query. The connection stays open, as in Pellory.
    if (sqlite3_open_v2(path, &store, SQLITE_OPEN_READWRITE, nullptr) != SQLITE_OK ||
        sqlite3_exec(store, "SELECT count(*) FROM sqlite_schema", nullptr, nullptr, nullptr) != SQLITE_OK)
        qFatal("The store cannot be opened: %s", sqlite3_errmsg(store));
}

void connectToBuses()
{
    if (!QDBusConnection::sessionBus().isConnected() || !QDBusConnection::systemBus().isConnected())
        qFatal("The buses cannot be reached");
}

} // namespace

int main(int argc, char* argv[])
{
    QApplication::setStyle(QStringLiteral("Fusion"));
    const QApplication application(argc, argv);
    openStore(argv[1]);
    connectToBuses();
    QMainWindow window;
    window.setCentralWidget(new QLabel(QStringLiteral("November 2026")));
    window.resize(534, 860);
    window.show();
    return QApplication::exec();
}
