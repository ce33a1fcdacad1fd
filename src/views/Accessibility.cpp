// SPDX-License-Identifier: GPL-3.0-or-later
#include "Accessibility.h"

#include <QAccessibleWidget>
#include <QWidget>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

// What is painted here, and is no control that the toolkit knows.
constexpr std::pair<QLatin1StringView, QAccessible::Role> roles[]{
    {"MarkedProgressBar"_L1, QAccessible::Graphic},  {"StepDots"_L1, QAccessible::Graphic},
    {"CalendarView"_L1, QAccessible::Grouping},      {"KeyCap"_L1, QAccessible::StaticText},
    {"LocationAlert"_L1, QAccessible::AlertMessage},
};

QAccessibleInterface* makeInterface(const QString& className, QObject* object)
{
    for (const auto& [name, role] : roles) {
        if (className == name)
            return new QAccessibleWidget(static_cast<QWidget*>(object), role);
    }
    return nullptr;
}

} // namespace

void installAccessibleRoles()
{
    QAccessible::installFactory(makeInterface);
}
