// SPDX-License-Identifier: GPL-3.0-or-later
#include "FormRows.h"

#include "Labels.h"

#include <QFormLayout>

QFormLayout* makeFormRows(QWidget& form)
{
    auto* rows = new QFormLayout(&form);
    rows->setContentsMargins({});
    rows->setHorizontalSpacing(14);
    rows->setVerticalSpacing(10);
    rows->setRowWrapPolicy(QFormLayout::WrapLongRows);
    rows->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    rows->setLabelAlignment(Qt::AlignLeading | Qt::AlignVCenter);
    return rows;
}

QLabel* besideField(const QString& words)
{
    return labels::singleLine(labels::dim(words));
}
