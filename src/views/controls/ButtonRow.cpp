// SPDX-License-Identifier: GPL-3.0-or-later
#include "ButtonRow.h"

#include <QBoxLayout>
#include <QEvent>

namespace {

// A field of a fixed width may hint at another.
int widthOf(const QWidget& widget)
{
    return qBound(widget.minimumWidth(), widget.sizeHint().width(), widget.maximumWidth());
}

} // namespace

ButtonRow::ButtonRow(Qt::Alignment edge, QWidget* parent)
    : QWidget(parent)
    , m_edge(edge)
    , m_buttons(new QBoxLayout(QBoxLayout::LeftToRight, this))
{
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed); // or stacked buttons would spread out
    m_buttons->setContentsMargins({});
    m_buttons->setSpacing(10);
    m_buttons->setSizeConstraint(QLayout::SetNoConstraint);
    m_buttons->addStretch(edge == Qt::AlignRight ? 1 : 0);
    m_buttons->addStretch(edge == Qt::AlignRight ? 0 : 1);
}

void ButtonRow::add(QWidget* button)
{
    m_buttons->insertWidget(m_buttons->count() - 1, button, 0, m_edge);
}

QSize ButtonRow::minimumSizeHint() const
{
    int widest = 0;
    for (const auto* button : findChildren<QWidget*>(Qt::FindDirectChildrenOnly))
        widest = qMax(widest, button->isHidden() ? 0 : widthOf(*button));
    return {widest, m_buttons->minimumSize().height()};
}

bool ButtonRow::event(QEvent* event)
{
    // A layout is requested when the text of a button changes.
    if (event->type() == QEvent::Resize || event->type() == QEvent::LayoutRequest)
        arrange();
    return QWidget::event(event);
}

void ButtonRow::arrange()
{
    m_buttons->setDirection(width() < totalWidth() ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
}

int ButtonRow::totalWidth() const
{
    int width = -m_buttons->spacing();
    for (const auto* button : findChildren<QWidget*>(Qt::FindDirectChildrenOnly))
        width += button->isHidden() ? 0 : widthOf(*button) + m_buttons->spacing();
    return width;
}
