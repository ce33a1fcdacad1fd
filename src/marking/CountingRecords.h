// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "AttendanceRule.h"
#include "Counting.h"
#include "Retry.h"

#include <QList>
#include <QObject>
#include <QProperty>

#include <functional>
#include <optional>

class AppSettings;
class DayAbsences;
class DayMarker;
class ModelContext;

/// What a person has chosen about how days count, and the rules of the employer. Every change is saved at once; if that
/// fails, it stays in memory for the next save. Each operation that changes something returns false, and changes
/// nothing, if the store cannot be read or there is no such kind or rule.
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

    [[nodiscard]] const DayAbsences& absences() const;
    /// The kinds of the program, then those of the person in the order in which they were named.
    [[nodiscard]] QList<AbsenceKind> absenceKinds() const;
    bool setTreatment(int kind, Treatment treatment);
    /// The kind with this name, which is added if there is none; nothing if the name is blank or the store cannot be
    /// read. Names are trimmed, and compared without regard to case.
    std::optional<AbsenceKind> addAbsenceKind(const QString& name);
    /// Days keep their state; those of this kind have none then. False for a kind of the program.
    bool removeAbsenceKind(int kind);

    /// In the order of their dates.
    [[nodiscard]] QList<DayOff> daysOff() const;
    /// A date that is a day off already gets the new name and source, and of a date that is twice in the list the last
    /// counts.
    bool addDaysOff(const QList<DayOff>& daysOff);
    bool removeDaysOff(const QList<QDate>& dates);

    [[nodiscard]] std::optional<HolidayRegion> holidayRegion() const;
    /// Adds the holidays, and remembers the region and its last year. The holidays of another region that lie in the
    /// future, on the day `today` or later, are removed. Days off that are no holidays stay as they are.
    bool setHolidays(const HolidayRegion& region, const QList<DayOff>& holidays, QDate today);
    /// Forgets the region. Removes its holidays from `today` on.
    bool removeHolidayRegion(QDate today);

    /// In the order of their dates.
    [[nodiscard]] QList<WorkWeek> workWeeks() const;
    /// Takes the place of one from the same date.
    bool setWorkWeek(const WorkWeek& week);
    bool removeWorkWeek(QDate from);

    [[nodiscard]] UsualWeek usualWeek() const;
    /// A week without days plans no months.
    bool setUsualWeek(UsualWeek week);

    /// Adds a rule at the end of the list, with a new id.
    bool addRule(AttendanceRule rule);
    /// Changes a rule for the whole time of its validity. The rule with this id must exist.
    bool changeRule(const AttendanceRule& rule);
    /// Changes a rule from a day on, or from the later day from which the changed one is to hold: the rule with this id
    /// ends before it, and the changed one, with an id of its own, follows it in the list. If one of the two would
    /// never hold, the rule is changed for the whole time.
    bool changeRule(const AttendanceRule& rule, QDate from);
    bool removeRule(const QUuid& id);

Q_SIGNALS:
    /// How days count, or a rule, has changed. It is emitted once for each change.
    void changed();

private:
    template <class Record> [[nodiscard]] QList<Record> stored() const;
    void readOnce() const;
    [[nodiscard]] bool read() const;
    void readAgain();
    /// Returns whether it has changed anything.
    using Action = std::function<bool(ModelContext&)>;
    [[nodiscard]] Action leavingOutVacation(bool leavesOut);
    bool apply(const Action& action);
    bool change(const Action& action);
    template <class Record> bool edit(const std::function<void(QList<Record>&)>& action);

    DayMarker& m_marker;
    AppSettings& m_settings;
    QPropertyNotifier m_vacationFollower;
    /// Reads what could not be read.
    mutable Retry m_retry;
    /// What is stored, as far as it could be read. It is read when it is wanted first, while no binding can depend on
    /// it yet; later it changes only outside of bindings.
    mutable bool m_isWanted = false;
    mutable QProperty<Counting> m_counting;
    mutable QProperty<QList<AttendanceRule>> m_rules;
    mutable QProperty<bool> m_leavesOutVacation{false};
};
