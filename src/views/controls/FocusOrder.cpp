// SPDX-License-Identifier: GPL-3.0-or-later
#include "FocusOrder.h"

#include <QList>
#include <QWidget>

#include <algorithm>

namespace {

bool isTabStop(const QWidget& widget)
{
    return (widget.focusPolicy() & Qt::TabFocus) != 0 && widget.isEnabled() && widget.focusProxy() == nullptr;
}

// The stops in a container, and the room that they take.
struct Part {
    QRect place;
    QList<QWidget*> stops;
};

void arrange(QList<Part>& parts, bool isLeftToRight)
{
    std::ranges::stable_sort(parts, {}, [](const Part& part) { return part.place.top(); });
    for (auto row = parts.begin(); row != parts.end();) {
        // What begins above the middle of the highest is beside it.
        const int middle = row->place.center().y();
        const auto end = std::find_if(row, parts.end(), [&](const Part& part) { return part.place.top() > middle; });
        std::ranges::stable_sort(
            row, end, {}, [&](const Part& part) { return isLeftToRight ? part.place.left() : -part.place.right(); });
        row = end;
    }
}

// What Tab reaches, and the widget that has the focus, which may be none of it.
QList<QWidget*> stopsIn(QWidget& widget, const QWidget* focused)
{
    QList<Part> parts;
    for (QWidget* child : widget.findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
        if (!child->isVisible() || child->isWindow())
            continue;
        Part part{{}, stopsIn(*child, focused)};
        for (const QWidget* stop : part.stops)
            part.place |= QRect(stop->mapTo(&widget, QPoint()), stop->size());
        if (!part.stops.isEmpty())
            parts.append(part);
    }
    arrange(parts, widget.isLeftToRight());
    QList<QWidget*> stops;
    if (isTabStop(widget) || &widget == focused)
        stops.append(&widget);
    for (const Part& part : parts)
        stops += part.stops;
    return stops;
}

} // namespace

bool moveFocus(QWidget& window, bool next)
{
    QWidget* const focused = window.focusWidget();
    QList<QWidget*> order = stopsIn(window, focused);
    if (!next)
        std::ranges::reverse(order);
    const auto here = std::ranges::find(order, focused);
    if (here != order.end())
        std::rotate(order.begin(), here + 1, order.end());
    const auto found = std::ranges::find_if(order, [&](QWidget* widget) { return isTabStop(*widget); });
    if (found == order.end() || *found == focused)
        return false;
    (*found)->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    return true;
}
