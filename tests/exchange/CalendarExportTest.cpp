// SPDX-License-Identifier: GPL-3.0-or-later
#include "CalendarExport.h"
#include "Testing.h"

#include <QCoreApplication>
#include <QTranslator>

#include <libical/ical.h>

namespace {

/// What libical finds in a calendar: "uid start end summary busy".
QStringList eventsIn(const QByteArray& file)
{
    for (const QByteArray& line : file.split('\n')) {
        EXPECT_LE(line.chopped(line.isEmpty() ? 0 : 1).size(), 75);
        EXPECT_TRUE(line.isValidUtf8());
    }
    icalcomponent* calendar = icalparser_parse_string(file.constData());
    const auto guard = qScopeGuard([calendar] { icalcomponent_free(calendar); });
    EXPECT_TRUE(icalrestriction_check(calendar));
    EXPECT_EQ(icalcomponent_count_errors(calendar), 0);
    QStringList events;
    for (auto* event = icalcomponent_get_first_component(calendar, ICAL_VEVENT_COMPONENT); event != nullptr;
         event = icalcomponent_get_next_component(calendar, ICAL_VEVENT_COMPONENT)) {
        const auto start = icalcomponent_get_dtstart(event);
        EXPECT_TRUE(start.is_date);
        const auto* busy = icalcomponent_get_first_property(event, ICAL_TRANSP_PROPERTY);
        events += QStringList{QString::fromUtf8(icalcomponent_get_uid(event)),
                              QString::fromUtf8(icaltime_as_ical_string(start)),
                              QString::fromUtf8(icaltime_as_ical_string(icalcomponent_get_dtend(event))),
                              QString::fromUtf8(icalcomponent_get_summary(event)),
                              QString::number(icalproperty_get_transp(busy) == ICAL_TRANSP_OPAQUE),
                              QString::number(icalcomponent_get_sequence(event))}
                      .join(u' ');
    }
    return events;
}

/// Gives states a name that must be folded and escaped.
class LongNames : public QTranslator {
public:
    [[nodiscard]] bool isEmpty() const override { return false; }
    [[nodiscard]] QString translate(const char* context, const char* /*text*/, const char* /*comment*/,
                                    int /*n*/) const override
    {
        return qstrcmp(context, "DayState") == 0 ? name : QString();
    }

    const QString name = u"a, b; \\"_s + QString(100, u'ä') + QString(200, u'a') + u"\n"_s;
};

} // namespace

TEST(CalendarExport, isReadByLibicalAndUpdatesWhatWasExportedBefore)
{
    const QDate newYear(2026, 12, 31);
    const QList<DayRecord> days{{.date = newYear, .state = DayState::VACATION_DAY},
                                {.date = newYear.addDays(1), .state = DayState::IN_OFFICE},
                                {.date = newYear.addDays(2), .state = DayState::OUT_OF_OFFICE},
                                {.date = {9999, 12, 31}, .state = DayState::IN_OFFICE}};
    const QSet states{DayState::VACATION_DAY, DayState::IN_OFFICE};
    const QDateTime now(QDate(2026, 1, 1), QTime(0, 1), Qt::UTC);
    EXPECT_EQ(eventsIn(calendarFile(days, states, now)),
              (QStringList{u"20261231@io.github.pellory.Pellory 20261231 20270101 Vacation Day 1 60"_s,
                           u"20270101@io.github.pellory.Pellory 20270101 20270102 In the Office 0 60"_s,
                           u"99991231@io.github.pellory.Pellory 99991231 100000101 In the Office 0 60"_s}));
    EXPECT_TRUE(eventsIn(calendarFile(days, states, now.addSecs(1))).first().endsWith(u" 61"_s));
    EXPECT_TRUE(eventsIn(calendarFile(days, states, now.addYears(-1))).first().endsWith(u" 0"_s));
    EXPECT_EQ(calendarFile(days, states, now.toOffsetFromUtc(3600)), calendarFile(days, states, now));
    EXPECT_TRUE(eventsIn(calendarFile({}, states, now)).isEmpty());
    LongNames names;
    QCoreApplication::installTranslator(&names);
    EXPECT_TRUE(eventsIn(calendarFile(days, states, now)).first().contains(names.name));
    QCoreApplication::removeTranslator(&names);
}
