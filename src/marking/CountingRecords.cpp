// SPDX-License-Identifier: GPL-3.0-or-later
#include "CountingRecords.h"

#include "AppSettings.h"
#include "DayMarker.h"
#include "ModelContext.h"
#include "StoreError.h"

#include <QLoggingCategory>

#include <algorithm>
#include <utility>

namespace {

Q_LOGGING_CATEGORY(logCounting, "pellory.marking", QtInfoMsg)

template <class Record, class Key, class Value> Record* findBy(QList<Record>& records, Key key, const Value& value)
{
    const auto found = std::ranges::find(records, value, key);
    return found == records.end() ? nullptr : &*found;
}

/// Takes the place of every record with the same key.
template <class Record, class Key> void put(QList<Record>& records, Key key, const Record& record)
{
    records.removeIf([&](const Record& other) { return other.*key == record.*key; });
    records.append(record);
}

template <class Record, class Key> QList<Record> sortedBy(Key key, QList<Record> records)
{
    std::ranges::stable_sort(records, {}, key);
    return records;
}

void removeHolidaysFrom(QList<DayOff>& daysOff, QDate today)
{
    daysOff.removeIf([today](const DayOff& day) { return day.source == DayOffSource::Holidays && day.date >= today; });
}

void addHolidays(QList<DayOff>& daysOff, const QList<DayOff>& holidays)
{
    for (const DayOff& holiday : holidays) {
        const DayOff* present = findBy(daysOff, &DayOff::date, holiday.date);
        if (present == nullptr || present->source == DayOffSource::Holidays)
            put(daysOff, &DayOff::date, holiday);
    }
}

/// The changed rule follows the one that it was, which ends before it.
void split(QList<AttendanceRule>& rules, AttendanceRule& before, AttendanceRule changed)
{
    for (AttendanceRule& other : rules)
        other.position += other.position > before.position ? 1 : 0;
    changed.id = QUuid::createUuid();
    changed.position = before.position + 1;
    const QDate lastDay = changed.from->addDays(-1);
    before.until = std::min(before.until.value_or(lastDay), lastDay);
    rules.append(changed);
}

} // namespace

CountingRecords::CountingRecords(DayMarker& marker, AppSettings& settings)
    : m_marker(marker)
    , m_settings(settings)
    , m_retry([this] { readAgain(); })
{
    m_vacationFollower = settings.vacationDaysCountAsInOffice.addNotifier([this] {
        if (m_settings.vacationDaysCountAsInOffice) // both are saved at the end of the turn
            apply(leavingOutVacation(false));
    });
    connect(&marker, &DayMarker::absencesChanged, this, &CountingRecords::readAgain);
}

const QProperty<Counting>& CountingRecords::counting() const
{
    readOnce();
    return m_counting;
}

const QProperty<QList<AttendanceRule>>& CountingRecords::rules() const
{
    readOnce();
    return m_rules;
}

const QProperty<bool>& CountingRecords::leavesOutVacation() const
{
    readOnce();
    return m_leavesOutVacation;
}

bool CountingRecords::setLeavesOutVacation(bool leavesOut)
{
    return change(leavingOutVacation(leavesOut));
}

CountingRecords::Action CountingRecords::leavingOutVacation(bool leavesOut)
{
    return [=, this](ModelContext& context) {
        const auto before = context.records<CountingChoices>();
        CountingChoices choices = before.isEmpty() ? CountingChoices() : before.last();
        choices.leavesOutVacation = leavesOut;
        context.replace(before, choices == CountingChoices() ? QList<CountingChoices>() : QList{choices});
        if (leavesOut)
            m_settings.vacationDaysCountAsInOffice = false;
        return leavesOut != m_leavesOutVacation;
    };
}

const DayAbsences& CountingRecords::absences() const
{
    return m_marker.absences();
}

QList<AbsenceKind> CountingRecords::absenceKinds() const
{
    return m_marker.absences().kinds();
}

bool CountingRecords::setTreatment(int kind, Treatment treatment)
{
    auto known = absenceKinds();
    AbsenceKind* changed = findBy(known, &AbsenceKind::id, kind);
    if (changed == nullptr)
        return false;
    changed->treatment = treatment;
    return edit<AbsenceKind>([&](auto& kinds) {
        put(kinds, &AbsenceKind::id, *changed);
        kinds.removeAll(AbsenceKind{.id = kind}); // as the program has it
    });
}

std::optional<AbsenceKind> CountingRecords::addAbsenceKind(const QString& name)
{
    const QString simplified = name.simplified();
    if (simplified.isEmpty())
        return {};
    for (const AbsenceKind& kind : absenceKinds()) {
        if (description(kind).compare(simplified, Qt::CaseInsensitive) == 0)
            return kind;
    }
    AbsenceKind added{.id = AbsenceKind::firstOwn, .name = simplified};
    const bool isAdded = edit<AbsenceKind>([&](auto& kinds) {
        for (const AbsenceKind& kind : kinds)
            added.id = std::max(added.id, kind.id + 1);
        kinds.append(added);
    });
    return isAdded ? std::optional(added) : std::nullopt;
}

bool CountingRecords::removeAbsenceKind(int kind)
{
    return kind >= AbsenceKind::firstOwn && edit<AbsenceKind>([kind](auto& kinds) {
               if (findBy(kinds, &AbsenceKind::id, kind) != nullptr)
                   put(kinds, &AbsenceKind::id, AbsenceKind{.id = kind});
           });
}

QList<DayOff> CountingRecords::daysOff() const
{
    return sortedBy(&DayOff::date, stored<DayOff>());
}

bool CountingRecords::addDaysOff(const QList<DayOff>& daysOff)
{
    QHash<QDate, DayOff> added;
    for (const DayOff& dayOff : daysOff)
        added.insert(dayOff.date, dayOff);
    return edit<DayOff>([&](auto& all) {
        all.removeIf([&](const DayOff& dayOff) { return added.contains(dayOff.date); });
        for (const DayOff& dayOff : daysOff) {
            if (added.contains(dayOff.date))
                all.append(added.take(dayOff.date));
        }
    });
}

bool CountingRecords::removeDaysOff(const QList<QDate>& dates)
{
    const QSet<QDate> removed(dates.begin(), dates.end());
    return edit<DayOff>(
        [&](auto& all) { all.removeIf([&](const DayOff& dayOff) { return removed.contains(dayOff.date); }); });
}

std::optional<HolidayRegion> CountingRecords::holidayRegion() const
{
    const auto regions = stored<HolidayRegion>();
    return regions.isEmpty() ? std::nullopt : std::optional(regions.last());
}

bool CountingRecords::setHolidays(const HolidayRegion& region, const QList<DayOff>& holidays, QDate today)
{
    return change([&](ModelContext& context) {
        const auto regions = context.records<HolidayRegion>();
        const auto before = context.records<DayOff>();
        const bool isSame = !regions.isEmpty() && regions.last().id == region.id;
        HolidayRegion merged = region;
        if (isSame)
            merged.lastYear = std::max(region.lastYear, regions.last().lastYear);
        auto after = before;
        if (!isSame)
            removeHolidaysFrom(after, today);
        addHolidays(after, holidays);
        const bool hasOtherDays = context.replace(before, after);
        return context.replace(regions, {merged}) || hasOtherDays;
    });
}

bool CountingRecords::removeHolidayRegion(QDate today)
{
    return change([&](ModelContext& context) {
        const auto regions = context.records<HolidayRegion>();
        const auto before = context.records<DayOff>();
        auto after = before;
        removeHolidaysFrom(after, today);
        const bool hasOtherDays = context.replace(before, after);
        return context.replace(regions, {}) || hasOtherDays;
    });
}

QList<WorkWeek> CountingRecords::workWeeks() const
{
    return sortedBy(&WorkWeek::from, stored<WorkWeek>());
}

bool CountingRecords::setWorkWeek(const WorkWeek& week)
{
    return edit<WorkWeek>([&](auto& weeks) { put(weeks, &WorkWeek::from, week); });
}

bool CountingRecords::removeWorkWeek(QDate from)
{
    return edit<WorkWeek>(
        [&](auto& weeks) { weeks.removeIf([from](const WorkWeek& week) { return week.from == from; }); });
}

UsualWeek CountingRecords::usualWeek() const
{
    const auto weeks = stored<UsualWeek>();
    return weeks.isEmpty() ? UsualWeek() : weeks.last();
}

bool CountingRecords::setUsualWeek(UsualWeek week)
{
    week.plansNewMonths = week.plansNewMonths && !week.weekdays.isEmpty();
    return edit<UsualWeek>([&](auto& weeks) { weeks = week == UsualWeek() ? QList<UsualWeek>() : QList{week}; });
}

bool CountingRecords::addRule(AttendanceRule rule)
{
    rule.id = QUuid::createUuid();
    return edit<AttendanceRule>([&](auto& rules) {
        const auto last = std::ranges::max_element(rules, {}, &AttendanceRule::position);
        rule.position = last == rules.end() ? 0 : last->position + 1;
        rules.append(rule);
    });
}

bool CountingRecords::changeRule(const AttendanceRule& rule)
{
    bool isFound = false;
    return edit<AttendanceRule>([&](auto& rules) {
               AttendanceRule* found = findBy(rules, &AttendanceRule::id, rule.id);
               isFound = found != nullptr;
               if (isFound)
                   *found = rule;
           }) &&
           isFound;
}

bool CountingRecords::changeRule(const AttendanceRule& rule, QDate from)
{
    AttendanceRule changed = rule;
    changed.from = std::max(rule.from.value_or(from), from);
    bool isFound = false;
    return edit<AttendanceRule>([&](auto& rules) {
               AttendanceRule* before = findBy(rules, &AttendanceRule::id, rule.id);
               isFound = before != nullptr;
               if (!isFound)
                   return;
               const bool heldBefore = !before->from || *before->from < *changed.from;
               const bool willHold = !changed.until || *changed.until >= *changed.from;
               if (heldBefore && willHold)
                   split(rules, *before, changed);
               else
                   *before = rule;
           }) &&
           isFound;
}

bool CountingRecords::removeRule(const QUuid& id)
{
    bool isFound = false;
    return edit<AttendanceRule>([&](auto& rules) {
               isFound = rules.removeIf([&](const AttendanceRule& rule) { return rule.id == id; }) > 0;
           }) &&
           isFound;
}

template <class Record> QList<Record> CountingRecords::stored() const
{
    try {
        return m_marker.context().records<Record>();
    } catch (const StoreError& error) {
        qCWarning(logCounting, "What counts cannot be read: %s", error.what());
        return {};
    }
}

void CountingRecords::readOnce() const
{
    if (!std::exchange(m_isWanted, true))
        static_cast<void>(read());
}

bool CountingRecords::read() const
{
    try {
        ModelContext& context = m_marker.context();
        const auto choices = context.records<CountingChoices>();
        const bool leavesOutVacation = std::ranges::any_of(choices, &CountingChoices::leavesOutVacation) &&
                                       !m_settings.vacationDaysCountAsInOffice;
        const auto kinds = context.records<AbsenceKind>();
        auto absences = m_marker.absences().all();
        for (const AbsenceKind& kind : kinds) {
            if (kind.isRemoved())
                absences.removeIf([&](const auto& absence) { return absence.value() == kind.id; });
        }
        const auto rules = sortedBy(&AttendanceRule::position, context.records<AttendanceRule>());
        m_counting = Counting({.leavesOutVacation = leavesOutVacation,
                               .daysOff = context.records<DayOff>(),
                               .workWeeks = context.records<WorkWeek>(),
                               .kinds = kinds,
                               .absences = absences});
        m_rules = rules;
        m_leavesOutVacation = leavesOutVacation;
        m_retry.setNeeded(false);
        return true;
    } catch (const StoreError& error) {
        qCWarning(logCounting, "How days count cannot be read: %s", error.what());
        m_retry.setNeeded(true);
        return false;
    }
}

void CountingRecords::readAgain()
{
    m_isWanted = true;
    if (read())
        Q_EMIT changed();
}

bool CountingRecords::apply(const Action& action)
{
    try {
        if (action(m_marker.context()))
            readAgain();
        return true;
    } catch (const StoreError& error) {
        qCWarning(logCounting, "How days count cannot be changed: %s", error.what());
        return false;
    }
}

bool CountingRecords::change(const Action& action)
{
    const bool isApplied = apply(action);
    if (isApplied)
        m_marker.context().save();
    return isApplied;
}

template <class Record> bool CountingRecords::edit(const std::function<void(QList<Record>&)>& action)
{
    return change([&](ModelContext& context) {
        const auto before = context.records<Record>();
        auto after = before;
        action(after);
        return context.replace(before, after);
    });
}
