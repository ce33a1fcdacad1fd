// SPDX-License-Identifier: GPL-3.0-or-later
#include "Accessibility.h"

#include <QAccessibleWidget>
#include <QWidget>

using namespace Qt::StringLiterals;

namespace {

QAccessibleInterface* makeInterface(const QString& className, QObject* object)
{
    if (className == "MarkedProgressBar"_L1 || className == "TrackingIndicator"_L1)
        return new QAccessibleWidget(static_cast<QWidget*>(object), QAccessible::Graphic);
    if (className == "CalendarView"_L1)
        return new QAccessibleWidget(static_cast<QWidget*>(object), QAccessible::Grouping);
    return nullptr;
}

} // namespace

void installAccessibleRoles()
{
    QAccessible::installFactory(makeInterface);
}
