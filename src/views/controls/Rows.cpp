// SPDX-License-Identifier: GPL-3.0-or-later
#include "Rows.h"

#include <QAbstractButton>
#include <QBoxLayout>
#include <QLineEdit>

void addCentred(QBoxLayout& column, QWidget* widget)
{
    auto* row = new QHBoxLayout;
    row->addStretch();
    row->addWidget(widget);
    row->addStretch();
    column.addLayout(row);
}

QHBoxLayout* makeEntryRow(QLineEdit* field, QAbstractButton* button,
                          const std::function<bool(const QString& text)>& accept)
{
    QObject::connect(button, &QAbstractButton::clicked, field, [=] { accept(field->text()); });
    QObject::connect(field, &QLineEdit::returnPressed, field, [=] {
        if (accept(field->text()))
            field->clear();
    });
    auto* row = new QHBoxLayout;
    row->addWidget(field);
    row->addWidget(button);
    return row;
}
