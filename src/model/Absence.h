// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDate>
#include <QString>

/// How a day out of office counts. The numbers are stored and never change.
enum class Treatment { OutOfOffice = 1, InOffice = 2, LeftOut = 3 };

/// Why a person was out of office. The program has four kinds of its own, which are stored once the person has changed
/// how they count. Numbers from `firstOwn` on are kinds that the person has named.
struct AbsenceKind {
    static constexpr int none = 0;
    static constexpr int sick = 1;
    static constexpr int businessTrip = 2;
    static constexpr int clientVisit = 3;
    static constexpr int training = 4;
    static constexpr int firstOwn = 16;

    int id = none;
    /// Of a kind that the person has named; otherwise empty.
    QString name = {};
    Treatment treatment = Treatment::OutOfOffice;

    /// A kind that the person has removed is stored without its name, so that its number is never used again.
    [[nodiscard]] bool isRemoved() const { return id >= firstOwn && name.isEmpty(); }

    bool operator==(const AbsenceKind&) const = default;
};

/// The kind in the person's language, such as "Sick".
[[nodiscard]] QString description(const AbsenceKind& kind);

/// Why a person was out of office on one day.
struct DayAbsence {
    QDate date;
    int kind = AbsenceKind::none;

    bool operator==(const DayAbsence&) const = default;
};
