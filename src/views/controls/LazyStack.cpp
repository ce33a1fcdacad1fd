// SPDX-License-Identifier: GPL-3.0-or-later
#include "LazyStack.h"

LazyStack::LazyStack(std::vector<PageBuilder> builders, QWidget* parent)
    : QStackedWidget(parent)
    , m_builders(std::move(builders))
    , m_pages(m_builders.size())
{
}

QWidget& LazyStack::page(int index)
{
    const auto place = static_cast<std::size_t>(index);
    QWidget*& page = m_pages.at(place);
    if (page == nullptr) {
        page = m_builders.at(place)();
        addWidget(page);
    }
    return *page;
}

void LazyStack::showPage(int index)
{
    setCurrentWidget(&page(index));
}

void LazyStack::discardPage(int index)
{
    delete std::exchange(m_pages.at(static_cast<std::size_t>(index)), nullptr);
}
