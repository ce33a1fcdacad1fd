// SPDX-License-Identifier: GPL-3.0-or-later
#include "EdgeScroll.h"

#include <QScrollArea>
#include <QScrollBar>

#include <algorithm>
#include <chrono>

using namespace std::chrono_literals;

namespace {

constexpr auto scrollInterval = 20ms;
// Inside the edge, since the pointer cannot leave a window that ends where the screen does.
constexpr int edgeReach = 16;
constexpr int placesPerStep = 4;
constexpr int longestStep = 24;

QRect onScreen(const QWidget& widget)
{
    return {widget.mapToGlobal(QPoint()), widget.size()};
}

} // namespace

EdgeScroll::EdgeScroll(const QWidget& contents)
    : m_contents(contents)
{
    m_timer.setInterval(scrollInterval);
    connect(&m_timer, &QTimer::timeout, this, &EdgeScroll::scroll);
}

void EdgeScroll::setEnds(const QWidget& first, const QWidget& last)
{
    m_first = &first;
    m_last = &last;
}

const QScrollArea* EdgeScroll::area() const
{
    for (const QWidget* each = m_contents.parentWidget(); each != nullptr; each = each->parentWidget()) {
        if (const auto* area = qobject_cast<const QScrollArea*>(each))
            return area;
    }
    return nullptr;
}

int EdgeScroll::step() const
{
    const QScrollArea* shown = area();
    if (shown == nullptr)
        return 0;
    const QRect sight = onScreen(*shown->viewport());
    const auto stepFor = [](int depth) { return depth > 0 ? std::min(1 + depth / placesPerStep, longestStep) : 0; };
    if (onScreen(*m_first).top() < sight.top() && m_place.y() < sight.top() + edgeReach)
        return -stepFor(sight.top() + edgeReach - m_place.y());
    return onScreen(*m_last).bottom() > sight.bottom() ? stepFor(m_place.y() - sight.bottom() + edgeReach) : 0;
}

void EdgeScroll::follow(const QPoint& place)
{
    m_place = place;
    if (step() == 0)
        m_timer.stop();
    else if (!m_timer.isActive())
        m_timer.start();
}

void EdgeScroll::scroll()
{
    const int distance = step();
    if (distance == 0)
        return m_timer.stop();
    QScrollBar* bar = area()->verticalScrollBar();
    bar->setValue(bar->value() + distance);
    Q_EMIT scrolled();
}
