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
    // To the toolkit a window that is neither main window nor dialog is no more than a place for something.
    const bool isView = className == "ContentView"_L1 || className == "SettingsView"_L1 || className == "Page"_L1;
    if (isView && static_cast<QWidget*>(object)->isWindow())
        return new QAccessibleWidget(static_cast<QWidget*>(object), QAccessible::Window);
    return nullptr;
}

} // namespace

void installAccessibleRoles()
{
    QAccessible::installFactory(makeInterface);
}
