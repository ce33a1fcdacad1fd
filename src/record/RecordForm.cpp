// SPDX-License-Identifier: GPL-3.0-or-later
#include "RecordForm.h"

#include <QLocale>

#include <algorithm>
#include <array>

QPageSize::PageSizeId usualPaper()
{
    // As the Unicode Common Locale Data Repository has it.
    constexpr std::array letterTerritories{
        QLocale::Belize,     QLocale::Canada,     QLocale::Chile,        QLocale::Colombia,  QLocale::CostaRica,
        QLocale::Guatemala,  QLocale::Mexico,     QLocale::Nicaragua,    QLocale::Panama,    QLocale::Philippines,
        QLocale::ElSalvador, QLocale::PuertoRico, QLocale::UnitedStates, QLocale::Venezuela,
    };
    const bool isLetter = std::ranges::find(letterTerritories, QLocale().territory()) != letterTerritories.end();
    return isLetter ? QPageSize::Letter : QPageSize::A4;
}
