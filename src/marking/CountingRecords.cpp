// SPDX-License-Identifier: GPL-3.0-or-later
#include "CountingRecords.h"

#include "AppSettings.h"
#include "DayAbsences.h"
#include "DayMarker.h"
#include "ModelContext.h"
#include "StoreError.h"

#include <QLoggingCategory>

#include <algorithm>
#include <array>

namespace {

Q_LOGGING_CATEGORY(logCounting, "pellory.marking", QtInfoMsg)

constexpr std::array ownKinds{AbsenceKind::sick, AbsenceKind::businessTrip, AbsenceKind::clientVisit,
                              AbsenceKind::training};

template <class Record> void replaceAll(ModelContext& context, const QList<Record>& before, const QList<Record>& after)
{
    for (const Record& record : before) {
        if (!after.contains(record))
            context.remove(record);
    }
    for (const Record& record : after) {
        if (!before.contains(record))
            context.add(record);
    }
}

template <class Record, class Key, class Value>
const Record* findBy(const QList<Record>& records, Key key, const Value& value)
{
    const auto found = std::ranges::find(records, value, key);
    return found == records.end() ? nullptr : &*found;
}

void removeHolidaysFrom(ModelContext& context, QDate today)
{
    for (const DayOff& dayOff : context.records<DayOff>()) {
        if (dayOff.source == DayOffSource::Holidays && dayOff.date >= today)
            context.remove(dayOff);
    }
}

} // namespace

CountingRecords::CountingRecords(DayMarker& marker, AppSettings& settings)
    : m_marker(marker)
    , m_settings(settings)
{
    m_vacationFollower = settings.vacationDaysCountAsInOffice.addNotifier([this] {
        if (m_settings.vacationDaysCountAsInOffice && leavesOutVacation())
            setLeavesOutVacation(false);
    });
    connect(&marker, &DayMarker::absencesChanged, this, &CountingRecords::readAgain);
}

const QProperty<Counting>& CountingRecords::counting() const
{
    read();
    return m_counting;
}

const QProperty<QList<AttendanceRule>>& CountingRecords::rules() const
{
    read();
    return m_rules;
}

const QProperty<bool>& CountingRecords::leavesOutVacation() const
{
    read();
    return m_leavesOutVacation;
}

bool CountingRecords::setLeavesOutVacation(bool leavesOut)
{
    const bool isChanged = change([leavesOut](ModelContext& context) {
        const auto before = context.records<CountingChoices>();
        CountingChoices choices = before.isEmpty() ? CountingChoices() : before.last();
        choices.leavesOutVacation = leavesOut;
        replaceAll(context, before, choices == CountingChoices() ? QList<CountingChoices>() : QList{choices});
    });
    if (isChanged && leavesOut)
        m_settings.vacationDaysCountAsInOffice = false;
    return isChanged;
}

QList<AbsenceKind> CountingRecords::absenceKinds() const
{
    QList<AbsenceKind> kinds;
    try {
        const auto stored = m_marker.context().records<AbsenceKind>();
        for (const int id : ownKinds) {
            const AbsenceKind* kind = findBy(stored, &AbsenceKind::id, id);
            kinds.append(kind != nullptr ? *kind : AbsenceKind{.id = id});
        }
        std::ranges::copy_if(stored, std::back_inserter(kinds),
                             [](const AbsenceKind& kind) { return kind.id >= AbsenceKind::firstOwn; });
        std::ranges::sort(kinds, {}, &AbsenceKind::id);
    } catch (const StoreError& error) {
        qCWarning(logCounting, "The kinds of absence cannot be read: %s", error.what());
    }
    return kinds;
}

bool CountingRecords::setTreatment(int kind, Treatment treatment)
{
    return change([=](ModelContext& context) {
        const auto stored = context.records<AbsenceKind>();
        const AbsenceKind* before = findBy(stored, &AbsenceKind::id, kind);
        AbsenceKind after = before != nullptr ? *before : AbsenceKind{.id = kind};
        after.treatment = treatment;
        if (before != nullptr)
            context.remove(*before);
        if (after != AbsenceKind{.id = kind})
            context.add(after);
    });
}

std::optional<AbsenceKind> CountingRecords::addAbsenceKind(const QString& name)
{
    const QString trimmed = name.simplified();
    if (trimmed.isEmpty())
        return {};
    AbsenceKind added{.id = AbsenceKind::firstOwn, .name = trimmed};
    for (const AbsenceKind& kind : absenceKinds()) {
        if (description(kind).compare(trimmed, Qt::CaseInsensitive) == 0)
            return kind;
        added.id = std::max(added.id, kind.id + 1);
    }
    const bool isAdded = change([&](ModelContext& context) {
        for (const DayAbsence& absence : context.records<DayAbsence>()) // of a kind that was removed
            added.id = std::max(added.id, absence.kind + 1);
        context.add(added);
    });
    return isAdded ? std::optional(added) : std::nullopt;
}

bool CountingRecords::removeAbsenceKind(int kind)
{
    return kind >= AbsenceKind::firstOwn && change([kind](ModelContext& context) {
               const auto stored = context.records<AbsenceKind>();
               if (const AbsenceKind* found = findBy(stored, &AbsenceKind::id, kind))
                   context.remove(*found);
           });
}

QList<DayOff> CountingRecords::daysOff() const
{
    try {
        auto daysOff = m_marker.context().records<DayOff>();
        std::ranges::stable_sort(daysOff, {}, &DayOff::date);
        return daysOff;
    } catch (const StoreError& error) {
        qCWarning(logCounting, "The days off cannot be read: %s", error.what());
        return {};
    }
}

bool CountingRecords::addDaysOff(const QList<DayOff>& daysOff)
{
    return change([&](ModelContext& context) {
        const auto before = context.records<DayOff>();
        for (const DayOff& dayOff : daysOff) {
            if (const DayOff* same = findBy(before, &DayOff::date, dayOff.date))
                context.remove(*same);
            context.add(dayOff);
        }
    });
}

bool CountingRecords::removeDaysOff(const QList<QDate>& dates)
{
    return change([&](ModelContext& context) {
        for (const DayOff& dayOff : context.records<DayOff>()) {
            if (dates.contains(dayOff.date))
                context.remove(dayOff);
        }
    });
}

std::optional<HolidayRegion> CountingRecords::holidayRegion() const
{
    try {
        const auto regions = m_marker.context().records<HolidayRegion>();
        return regions.isEmpty() ? std::nullopt : std::optional(regions.last());
    } catch (const StoreError& error) {
        qCWarning(logCounting, "The region of the holidays cannot be read: %s", error.what());
        return {};
    }
}

bool CountingRecords::setHolidays(const HolidayRegion& region, const QList<DayOff>& holidays, QDate today)
{
    return change([&](ModelContext& context) {
        const auto before = context.records<HolidayRegion>();
        if (!before.isEmpty() && before.last().id != region.id)
            removeHolidaysFrom(context, today);
        replaceAll(context, before, {region});
        const auto daysOff = context.records<DayOff>();
        for (const DayOff& holiday : holidays) {
            if (const DayOff* same = findBy(daysOff, &DayOff::date, holiday.date))
                context.remove(*same);
            context.add(holiday);
        }
    });
}

bool CountingRecords::removeHolidayRegion(QDate today)
{
    return change([&](ModelContext& context) {
        removeHolidaysFrom(context, today);
        replaceAll(context, context.records<HolidayRegion>(), {});
    });
}

QList<WorkWeek> CountingRecords::workWeeks() const
{
    try {
        auto weeks = m_marker.context().records<WorkWeek>();
        std::ranges::stable_sort(weeks, {}, &WorkWeek::from);
        return weeks;
    } catch (const StoreError& error) {
        qCWarning(logCounting, "The weekdays of work cannot be read: %s", error.what());
        return {};
    }
}

bool CountingRecords::setWorkWeek(const WorkWeek& week)
{
    return change([&](ModelContext& context) {
        const auto weeks = context.records<WorkWeek>();
        if (const WorkWeek* same = findBy(weeks, &WorkWeek::from, week.from))
            context.remove(*same);
        context.add(week);
    });
}

bool CountingRecords::removeWorkWeek(QDate from)
{
    return change([&](ModelContext& context) {
        const auto weeks = context.records<WorkWeek>();
        if (const WorkWeek* found = findBy(weeks, &WorkWeek::from, from))
            context.remove(*found);
    });
}

bool CountingRecords::addRule(AttendanceRule rule)
{
    rule.id = QUuid::createUuid();
    rule.position = rules().value().isEmpty() ? 0 : rules().value().last().position + 1;
    return change([&](ModelContext& context) { context.add(rule); });
}

bool CountingRecords::changeRule(const AttendanceRule& rule)
{
    const auto all = rules().value();
    const AttendanceRule* before = findBy(all, &AttendanceRule::id, rule.id);
    return before != nullptr && change([&](ModelContext& context) {
               context.remove(*before);
               context.add(rule);
           });
}

bool CountingRecords::changeRule(const AttendanceRule& rule, QDate from)
{
    const auto all = rules().value();
    const AttendanceRule* before = findBy(all, &AttendanceRule::id, rule.id);
    if (before == nullptr)
        return false;
    if (before->from && *before->from >= from)
        return changeRule(rule);
    return change([&](ModelContext& context) {
        AttendanceRule ended = *before;
        ended.until = from.addDays(-1);
        AttendanceRule changed = rule;
        changed.id = QUuid::createUuid();
        changed.from = from;
        changed.position = before->position + 1;
        for (const AttendanceRule& other : all) {
            if (other.position <= before->position)
                continue;
            AttendanceRule moved = other;
            ++moved.position;
            context.remove(other);
            context.add(moved);
        }
        context.remove(*before);
        context.add(ended);
        context.add(changed);
    });
}

bool CountingRecords::removeRule(const QUuid& id)
{
    const auto all = rules().value();
    const AttendanceRule* found = findBy(all, &AttendanceRule::id, id);
    return found != nullptr && change([&](ModelContext& context) { context.remove(*found); });
}

void CountingRecords::read() const
{
    if (m_isRead)
        return;
    try {
        ModelContext& context = m_marker.context();
        const auto choices = context.records<CountingChoices>();
        const bool leavesOutVacation = !choices.isEmpty() && choices.last().leavesOutVacation;
        auto rules = context.records<AttendanceRule>();
        std::ranges::stable_sort(rules, {}, &AttendanceRule::position);
        m_counting = Counting({.leavesOutVacation = leavesOutVacation,
                               .daysOff = context.records<DayOff>(),
                               .workWeeks = context.records<WorkWeek>(),
                               .kinds = context.records<AbsenceKind>(),
                               .absences = m_marker.absences().all()});
        m_rules = rules;
        m_leavesOutVacation = leavesOutVacation;
        m_isRead = true;
    } catch (const StoreError& error) {
        qCWarning(logCounting, "How days count cannot be read: %s", error.what());
    }
}

void CountingRecords::readAgain()
{
    m_isRead = false;
    read();
    Q_EMIT changed();
}

bool CountingRecords::change(const std::function<void(ModelContext&)>& action)
{
    try {
        action(m_marker.context());
    } catch (const StoreError& error) {
        qCWarning(logCounting, "How days count cannot be changed: %s", error.what());
        return false;
    }
    m_marker.context().save();
    readAgain();
    return true;
}
