// SPDX-License-Identifier: GPL-3.0-or-later
#include "CheckedText.h"

#include <QCoreApplication>

namespace {

struct CheckedTexts {
    Q_DECLARE_TR_FUNCTIONS(CheckedText)
};

} // namespace

QString checkedText(const QString& text, Qt::CheckState state)
{
    switch (state) {
    case Qt::Checked:
        return CheckedTexts::tr("%1, checked", "row of a list").arg(text);
    case Qt::PartiallyChecked:
        return CheckedTexts::tr("%1, partly checked", "row of a list").arg(text);
    case Qt::Unchecked:
        break;
    }
    return CheckedTexts::tr("%1, not checked", "row of a list").arg(text);
}
