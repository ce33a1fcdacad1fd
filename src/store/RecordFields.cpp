// SPDX-License-Identifier: GPL-3.0-or-later
#include "RecordFields.h"

#include "StoreError.h"

#include <algorithm>

namespace {

std::shared_ptr<Goal> goalWithId(const AppSettings::Goals& goals, const QString& id)
{
    const QUuid uuid(id);
    const auto found = std::ranges::find_if(goals, [&](const auto& goal) { return goal->id == uuid; });
    if (found == goals.end())
        throw StoreError(StoreError::tr("the goal %1 is missing").arg(id));
    return *found;
}

QStringList idsOf(const AppSettings::Goals& goals)
{
    QStringList ids;
    for (const auto& goal : goals)
        ids.append(goal->id.toString(QUuid::WithoutBraces));
    return ids;
}

Field<AppSettings> goalsField(const std::function<AppSettings::Goals()>& storedGoals)
{
    return {.column = {"days_per_week_goals", ColumnType::Text},
            .read = [](const AppSettings& settings) { return toStored(idsOf(settings.daysPerWeekGoals)); },
            .write =
                [storedGoals](AppSettings& settings, const Value& ids) {
                    const AppSettings::Goals stored = storedGoals();
                    AppSettings::Goals named;
                    for (const QString& id : fromStored<QStringList>(ids))
                        named.append(goalWithId(stored, id));
                    settings.daysPerWeekGoals = named;
                },
            .follow = [](AppSettings& settings,
                         const auto& changed) { return settings.daysPerWeekGoals.addNotifier(changed); }};
}

} // namespace

RecordFields<Month> monthFields()
{
    return {"month",
            {
                field("year", &Month::year),
                field("month", &Month::month),
                field("name", &Month::name),
                field("days_in_month", &Month::daysInMonth),
                field("days", &Month::days),
            }};
}

RecordFields<Goal> goalFields()
{
    return {"goal",
            {
                field("id", &Goal::id),
                field("wanted_days_per_week", &Goal::wantedDaysPerWeek),
                field("description", &Goal::desc),
            }};
}

RecordFields<DayChange> dayChangeFields()
{
    return {"day_change",
            {
                field("time", &DayChange::time),
                field("date", &DayChange::date),
                field("before", &DayChange::before),
                field("after", &DayChange::after),
                field("changed_by", &DayChange::by),
                field("change_group", &DayChange::group),
                field("reverted_group", &DayChange::revertedGroup),
                field("network", &DayChange::network),
                field("absence_before", &DayChange::absenceBefore),
                field("absence_after", &DayChange::absenceAfter),
            }};
}

RecordFields<DayNote> dayNoteFields()
{
    return {"day_note",
            {
                field("date", &DayNote::date),
                field("text", &DayNote::text),
            }};
}

template <> RecordFields<AbsenceKind> fieldsOf<AbsenceKind>()
{
    return {"absence_kind",
            {
                field("id", &AbsenceKind::id),
                field("name", &AbsenceKind::name),
                field("treatment", &AbsenceKind::treatment, Treatment::LeftOut),
            }};
}

template <> RecordFields<DayAbsence> fieldsOf<DayAbsence>()
{
    return {"day_absence",
            {
                field("date", &DayAbsence::date),
                field("kind", &DayAbsence::kind),
            }};
}

template <> RecordFields<DayOff> fieldsOf<DayOff>()
{
    return {"day_off",
            {
                field("date", &DayOff::date),
                field("name", &DayOff::name),
                field("source", &DayOff::source, DayOffSource::File),
            }};
}

template <> RecordFields<HolidayRegion> fieldsOf<HolidayRegion>()
{
    return {"holiday_region",
            {
                field("id", &HolidayRegion::id),
                field("last_year", &HolidayRegion::lastYear),
            }};
}

template <> RecordFields<WorkWeek> fieldsOf<WorkWeek>()
{
    return {"work_week",
            {
                field("first_day", &WorkWeek::from),
                field("weekdays", &WorkWeek::weekdays),
            }};
}

template <> RecordFields<CountingChoices> fieldsOf<CountingChoices>()
{
    return {"counting", {field("leaves_out_vacation", &CountingChoices::leavesOutVacation)}};
}

template <> RecordFields<UsualWeek> fieldsOf<UsualWeek>()
{
    return {"usual_week",
            {
                field("weekdays", &UsualWeek::weekdays),
                field("plans_new_months", &UsualWeek::plansNewMonths),
            }};
}

template <> RecordFields<AttendanceRule> fieldsOf<AttendanceRule>()
{
    using Rule = AttendanceRule;
    return {"attendance_rule",
            {
                field("id", &Rule::id),
                field("name", &Rule::name),
                field("bound", &Rule::bound, Rule::Bound::AtMost),
                field("amount", &Rule::amount, Rule::largestAmount),
                field("unit", &Rule::unit, Rule::Unit::Days),
                field("subject", &Rule::subject, Rule::Subject::OutOfOffice),
                field("absence_kind", &Rule::absenceKind),
                field("weekdays", &Rule::weekdays),
                field("span", &Rule::span, Rule::Span::LastWeeks),
                field("anchor", &Rule::anchor),
                field("first_month", &Rule::firstMonth, 12),
                field("weeks", &Rule::weeks, Rule::mostWeeks),
                field("first_day", &Rule::from),
                field("last_day", &Rule::until),
                field("position", &Rule::position),
            }};
}

RecordFields<AppSettings> settingsFields(const std::function<AppSettings::Goals()>& storedGoals)
{
    return {"app_settings",
            {
                goalsField(storedGoals),
                field("in_office_ssids", &AppSettings::inOfficeSsids),
                field("first_time", &AppSettings::firstTime),
                field("wifi_tracking_enabled", &AppSettings::wifiTrackingEnabled),
                field("vacation_days_count_as_in_office", &AppSettings::vacationDaysCountAsInOffice),
                field("notifications_enabled", &AppSettings::notificationsEnabled),
                field("check_every_in_minutes", &AppSettings::checkEveryInMinutes),
            }};
}
