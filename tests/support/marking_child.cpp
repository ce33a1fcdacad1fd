// SPDX-License-Identifier: GPL-3.0-or-later
#include "Marking.h"
#include "ModelContainer.h"
#include "ModelContext.h"

#include <QCoreApplication>
#include <QTimer>

#include <iostream>

using namespace Qt::StringLiterals;

// marking_child <store> <number> save|turn
//
// Makes the marks of the sequence from <number> on, without end, each in twelve records at once. When a mark has to be
// on disk, because it was saved or because the turn of the event loop in which it was made has ended, writes how many
// marks there are.
int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    ModelContainer container({.name = u"Example"_s, .path = arguments.at(1)});
    ModelContext& context = container.mainContext();
    auto months = context.fetchMonths();
    while (months.size() < 12) {
        months.append(std::make_shared<Month>(2026, 1));
        context.insert(months.last());
    }

    QTimer turn;
    turn.callOnTimeout([&, number = arguments.at(2).toInt(), isLeftToTheTurn = false]() mutable {
        if (isLeftToTheTurn)
            std::cout << number << std::endl;
        for (const auto& month : months)
            makeSequencedMark(*month, number);
        ++number;
        if (arguments.at(3) == "turn"_L1)
            isLeftToTheTurn = true;
        else if (context.save())
            std::cout << number << std::endl;
    });
    turn.start();
    return QCoreApplication::exec();
}
