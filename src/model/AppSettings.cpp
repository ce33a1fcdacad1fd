// SPDX-License-Identifier: GPL-3.0-or-later
#include "AppSettings.h"

using namespace Qt::StringLiterals;

const AppSettings::Goals& AppSettings::defaultGoals()
{
    static const Goals goals{
        Goal::create(u"2.00"_s, u"not fired"_s),
        Goal::create(u"3.00"_s, u"no probation"_s),
        Goal::create(u"4.00"_s, u"ideal"_s),
    };
    return goals;
}
