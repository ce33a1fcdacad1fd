// SPDX-License-Identifier: GPL-3.0-or-later
#include "CheckOutcome.h"

QString CheckOutcome::text() const
{
    switch (kind) {
    case None:
        break;
    case Running:
        return tr("Looking for networks...");
    case Marked:
        return tr("Today was marked as in the office.");
    case MarkedBefore:
        return tr("An office network is in range. Today is already marked.");
    case TakenBack:
        return tr("An office network is in range. You took back today's mark.");
    case NotInRange:
        return tr("No office network is in range.");
    case NoNetworkSet:
        return tr("No office network is set.");
    case Failed:
        return problem;
    case TrackingOff:
        return tr("Automatic tracking is off, so Pellory did not check.");
    case NotSetUp:
        return tr("Checks start when set-up is finished and automatic tracking is on.");
    }
    return {};
}
