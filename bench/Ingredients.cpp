// SPDX-License-Identifier: GPL-3.0-or-later
#include <QApplication>
#include <QDBusConnection>
#include <QHBoxLayout>
#include <QLabel>
#include <QMainWindow>

#include <SQLiteCpp/SQLiteCpp.h>

// Ingredients <store>
//
// What the ingredients of Pellory cost any program: a window of its size with a line of text in the two weights that
// Pellory writes in, a store opened with the same library, and a connection to each bus.

namespace {

/// SQLite does not read the file before the first query.
SQLite::Database openStore(const char* path)
{
    SQLite::Database store(path, SQLite::OPEN_READWRITE);
    store.execAndGet("SELECT count(*) FROM sqlite_schema");
    return store;
}

void connectToBuses()
{
    if (!QDBusConnection::sessionBus().isConnected() || !QDBusConnection::systemBus().isConnected())
        qFatal("The buses cannot be reached");
}

QWidget* lineOfText()
{
    auto* line = new QWidget;
    auto* layout = new QHBoxLayout(line);
    layout->addWidget(new QLabel(QStringLiteral("4 days in the office this")));
    auto* word = new QLabel(QStringLiteral("month"));
    QFont bold = word->font();
    bold.setBold(true);
    word->setFont(bold);
    layout->addWidget(word);
    return line;
}

} // namespace

int main(int argc, char* argv[])
{
    QApplication::setStyle(QStringLiteral("Fusion"));
    const QApplication application(argc, argv);
    const SQLite::Database store = openStore(argv[1]);
    connectToBuses();
    QMainWindow window;
    window.setCentralWidget(lineOfText());
    window.resize(534, 860);
    window.show();
    return QApplication::exec();
}
