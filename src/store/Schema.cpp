// SPDX-License-Identifier: GPL-3.0-or-later
#include "Schema.h"

#include "RecordFields.h"

#include <algorithm>

namespace {

template <class Named> void eraseNamed(std::vector<Named>& items, const std::vector<std::string>& names)
{
    std::erase_if(items, [&](const Named& item) { return std::ranges::count(names, item.name) > 0; });
}

void undo(const Migration& migration, Schema& schema)
{
    for (TableLayout& table : schema.tables) {
        for (const NewColumn& added : migration.newColumns) {
            if (added.table == table.name)
                eraseNamed(table.columns, {added.column});
        }
    }
    eraseNamed(schema.tables, migration.newTables);
    eraseNamed(schema.indexes, migration.newIndexes);
}

TableLayout dayChanges()
{
    TableLayout layout = dayChangeFields().layout();
    layout.isLarge = true;
    return layout;
}

} // namespace

Schema Schema::atVersion(int version) const
{
    Schema schema = *this;
    while (schema.version() > version) {
        const Migration last = schema.migrations.back();
        undo(last, schema);
        schema.migrations.pop_back();
    }
    return schema;
}

std::vector<TableLayout> smallTables()
{
    return {fieldsOf<AbsenceKind>().layout(), fieldsOf<DayAbsence>().layout(),
            fieldsOf<DayOff>().layout(),      fieldsOf<HolidayRegion>().layout(),
            fieldsOf<WorkWeek>().layout(),    fieldsOf<CountingChoices>().layout(),
            fieldsOf<UsualWeek>().layout(),   fieldsOf<AttendanceRule>().layout()};
}

Schema pellorySchema()
{
    Schema schema{
        .tables = {monthFields().layout(), goalFields().layout(), settingsFields().layout(), dayChanges(),
                   dayNoteFields().layout()},
        .indexes = {{"month_by_period", "CREATE INDEX month_by_period ON month (year, month)"},
                    {"day_note_by_date", "CREATE INDEX day_note_by_date ON day_note (date)"}},
        .migrations = {{.newTables = {"day_change", "day_note"}, .newIndexes = {"day_note_by_date"}},
                       {.newTables = {"absence_kind", "day_absence", "day_off", "holiday_region", "work_week",
                                      "counting", "attendance_rule"},
                        .newColumns = {{"day_change", "absence_before", 0}, {"day_change", "absence_after", 0}}},
                       {.newTables = {"usual_week"}}},
    };
    for (const TableLayout& table : smallTables())
        schema.tables.push_back(table);
    return schema;
}
