// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "AttendanceRule.h"
#include "Counting.h"

#include <QList>
#include <QObject>
#include <QProperty>

#include <functional>
#include <optional>

class AppSettings;
class DayMarker;
class ModelContext;

/// What a person has chosen about how days count, and the rules of the employer. Every change is saved at once. Each
/// operation that changes something returns false, and changes nothing, if the store cannot be read.
class CountingRecords : public QObject {
    Q_OBJECT

public:
    CountingRecords(DayMarker& marker, AppSettings& settings);

    /// How days count. Bindings that read it are evaluated anew after each change. Nothing is chosen while the store
    /// cannot be read.
    [[nodiscard]] const QProperty<Counting>& counting() const;
    /// In the order of their positions.
    [[nodiscard]] const QProperty<QList<AttendanceRule>>& rules() const;

    [[nodiscard]] const QProperty<bool>& leavesOutVacation() const;
    /// Switches off that vacation days count as in the office, which excludes it; and the other way round.
    bool setLeavesOutVacation(bool leavesOut);

    /// The kinds of the program, then those of the person in the order in which they were named.
    [[nodiscard]] QList<AbsenceKind> absenceKinds() const;
    bool setTreatment(int kind, Treatment treatment);
    /// The kind with this name, which is added if there is none; nothing if the name is blank or the store cannot be
    /// read. Names are trimmed, and compared without regard to case.
    std::optional<AbsenceKind> addAbsenceKind(const QString& name);
    /// Days keep their state; those of this kind have none then. False also for a kind of the program.
    bool removeAbsenceKind(int kind);

    /// In the order of their dates.
    [[nodiscard]] QList<DayOff> daysOff() const;
    /// A date that is a day off already gets the new name and source.
    bool addDaysOff(const QList<DayOff>& daysOff);
    bool removeDaysOff(const QList<QDate>& dates);

    [[nodiscard]] std::optional<HolidayRegion> holidayRegion() const;
    /// Adds the holidays, and remembers the region. The holidays of another region that lie in the future, on the day
    /// `today` or later, are removed.
    bool setHolidays(const HolidayRegion& region, const QList<DayOff>& holidays, QDate today);
    /// Forgets the region. Removes its holidays from `today` on.
    bool removeHolidayRegion(QDate today);

    /// In the order of their dates.
    [[nodiscard]] QList<WorkWeek> workWeeks() const;
    /// Takes the place of one from the same date.
    bool setWorkWeek(const WorkWeek& week);
    bool removeWorkWeek(QDate from);

    /// Adds a rule at the end of the list, with a new id.
    bool addRule(AttendanceRule rule);
    /// Changes a rule for the whole time of its validity. The rule with this id must exist.
    bool changeRule(const AttendanceRule& rule);
    /// Changes a rule from a day on: the rule with this id ends on the day before, and the changed one, with an id of
    /// its own, follows it in the list. If the rule did not hold before that day, it is changed as by changeRule().
    bool changeRule(const AttendanceRule& rule, QDate from);
    bool removeRule(const QUuid& id);

Q_SIGNALS:
    /// How days count, or a rule, has changed.
    void changed();

private:
    void read() const;
    void readAgain();
    bool change(const std::function<void(ModelContext&)>& action);

    DayMarker& m_marker;
    AppSettings& m_settings;
    QPropertyNotifier m_vacationFollower;
    /// What is stored, as far as it could be read.
    mutable bool m_isRead = false;
    mutable QProperty<Counting> m_counting;
    mutable QProperty<QList<AttendanceRule>> m_rules;
    mutable QProperty<bool> m_leavesOutVacation{false};
};
