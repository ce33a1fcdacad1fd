// SPDX-License-Identifier: GPL-3.0-or-later
#include "Accessibility.h"

#include <QAccessibleWidget>
#include <QVariant>
#include <QWidget>

namespace {

constexpr const char* roleProperty = "accessibleRole";

QAccessibleInterface* makeInterface(const QString& /*className*/, QObject* object)
{
    const QVariant role = object->property(roleProperty);
    return role.isValid() ? new QAccessibleWidget(static_cast<QWidget*>(object), role.value<QAccessible::Role>())
                          : nullptr;
}

} // namespace

void setAccessibleRole(QWidget& widget, QAccessible::Role role)
{
    widget.setProperty(roleProperty, QVariant::fromValue(role));
}

void installAccessibleRoles()
{
    QAccessible::installFactory(makeInterface);
}
