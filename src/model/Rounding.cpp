// SPDX-License-Identifier: GPL-3.0-or-later
#include "Rounding.h"

#include <cmath>

double roundedToTwoDecimals(double value)
{
    const double hundredths = value * 100;
    const double lost = std::fma(value, 100, -hundredths);
    const double whole = std::nearbyint(hundredths);
    const double rest = hundredths - whole;
    // A tie that only the rounding of the product has made is not one.
    const bool isOnOtherSide = std::abs(rest) == 0.5 && lost * rest > 0;
    return (isOnOtherSide ? whole + 2 * rest : whole) / 100;
}
