// SPDX-License-Identifier: GPL-3.0-or-later
#include "NumberField.h"

#include "Fonts.h"

#include <QLocale>

namespace {

constexpr int usualNumberWidth = 62;

} // namespace

NumberField::NumberField(const QString& accessibleName, QWidget* parent)
    : TextField({}, parent)
{
    setAccessibleName(accessibleName);
    setAlignment(Qt::AlignRight);
    setFixedWidth(fonts::grown(usualNumberWidth, font()));
}

std::optional<double> NumberField::number() const
{
    const QString words = text().trimmed();
    bool isNumber = false;
    double number = QLocale().toDouble(words, &isNumber);
    if (!isNumber || words.contains(u'.'))
        number = words.toDouble(&isNumber);
    return isNumber ? std::optional(number) : std::nullopt;
}

void NumberField::setNumber(double number)
{
    setText(textOf(number));
}

QString NumberField::textOf(double number)
{
    QLocale locale;
    locale.setNumberOptions(QLocale::OmitGroupSeparator);
    return locale.toString(number, 'g', QLocale::FloatingPointShortest);
}
