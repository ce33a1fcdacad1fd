// SPDX-License-Identifier: GPL-3.0-or-later
#include "AlertCard.h"

#include "Accessibility.h"
#include "Button.h"
#include "ButtonRow.h"
#include "Card.h"
#include "Labels.h"
#include "Rows.h"

#include <QVBoxLayout>

using namespace Qt::StringLiterals;

AlertCard::AlertCard(QWidget* parent)
    : QWidget(parent)
    , m_title(labels::strong({}))
    , m_message(labels::text({}))
    , m_buttons(new ButtonRow(Qt::AlignRight))
{
    setAccessibleRole(*this, QAccessible::AlertMessage);
    announceWhenShown(*this, [this] { return spokenText(); });
    auto* card = new Card;
    auto* around = new QVBoxLayout(this);
    around->setContentsMargins(24, 20, 24, 0);
    addCentred(*around, card);
    card->setFixedWidth(Card::contentWidth(font()));
    auto* column = new QVBoxLayout(card);
    column->setContentsMargins(20, 16, 20, 16);
    column->addWidget(m_title);
    column->addWidget(m_message);
    column->addSpacing(4);
    column->addWidget(m_buttons);
}

void AlertCard::setTexts(const QString& title, const QString& message)
{
    const QString before = spokenText();
    setAccessibleName(title);
    m_title->setText(title);
    m_message->setText(message);
    if (isVisible() && spokenText() != before)
        announce(*this, spokenText());
}

QString AlertCard::spokenText() const
{
    return m_title->text() + u". "_s + m_message->text();
}

Button* AlertCard::addButton(const QString& name, const QString& text)
{
    auto* button = new Button(text);
    button->setObjectName(name);
    m_buttons->add(button);
    return button;
}
