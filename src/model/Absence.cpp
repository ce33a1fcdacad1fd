// SPDX-License-Identifier: GPL-3.0-or-later
#include "Absence.h"

#include <QCoreApplication>

namespace {

struct AbsenceTexts {
    Q_DECLARE_TR_FUNCTIONS(Absence)
};

} // namespace

QString description(const AbsenceKind& kind)
{
    switch (kind.id) {
    case AbsenceKind::sick:
        return AbsenceTexts::tr("Sick");
    case AbsenceKind::businessTrip:
        return AbsenceTexts::tr("Business Trip");
    case AbsenceKind::clientVisit:
        return AbsenceTexts::tr("Client Visit");
    case AbsenceKind::training:
        return AbsenceTexts::tr("Training");
    default:
        return kind.name;
    }
}
