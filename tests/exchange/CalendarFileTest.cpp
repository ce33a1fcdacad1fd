// SPDX-License-Identifier: GPL-3.0-or-later
#include "CalendarFile.h"
#include "CalendarReader.h"
#include "Testing.h"

#include <QTemporaryDir>

#include <random>
#include <sys/stat.h>

namespace {

const QDate today(2026, 11, 20);

CalendarFileContents read(const QByteArray& text)
{
    return CalendarReader(today).read(text);
}

QByteArray calendar(const QByteArray& events)
{
    return "BEGIN:VCALENDAR\r\nVERSION:2.0\n" + events + "\nEND:VCALENDAR\r\n";
}

/// What is read of an event: days as "2026-01-01 Name; ...", or the problem.
QString readEvent(const QByteArray& lines)
{
    const auto contents = read(calendar("BEGIN:VEVENT\n" + lines + "\nEND:VEVENT"));
    QStringList texts = contents.problems;
    for (const DayOff& day : contents.daysOff) {
        EXPECT_EQ(day.source, DayOffSource::File);
        texts.append(u"%1 %2"_s.arg(day.date.toString(Qt::ISODate), day.name).trimmed());
    }
    return texts.join(u"; "_s);
}

} // namespace

TEST(CalendarFile, allDayEventsAreDaysOffAndAnythingElseIsRefusedAloud)
{
    const struct {
        QByteArray event;
        const char* result;
    } rows[] = {
        {"DTSTART;VALUE=DATE:20260101\nSUMMARY:A\\, b\\;\\nc\\\\d", "2026-01-01 A, b; c\\d"},
        {"dtstart;value=date:20260101\r\nDTEND;VALUE=DATE:20260103", "2026-01-01; 2026-01-02"},
        {"DTSTART;X=\"a:b;c\";VALUE=DATE:20260101\nDTEND:20260101", "2026-01-01"},
        {"DTSTART:20261231\nDURATION:P2D\nSUMMARY;LANGUAGE=de:X", "2026-12-31 X; 2027-01-01 X"},
        {"DTSTART:20260101\nSUMMARY:Neu\n jahr f\xC3\r\n \xBC"
         "r\n\t alle",
         "2026-01-01 Neujahr für alle"},
        {"DTSTART:20260101\nBEGIN:VALARM\nSUMMARY:Bell\nDURATION:PT5M\nBEGIN:X\nEND:VALARM\nSUMMARY:X", "2026-01-01 X"},
        {"DTSTART:20260101\nSUMMARY:A\nEND:VEVENT\nBEGIN:VEVENT\nDTSTART:20260101\nSUMMARY:B", "2026-01-01 A, B"},
        {"DTSTART:20260101\nSUMMARY:A\nEND:VEVENT\nBEGIN:VEVENT\nDTSTART:20260101\nSUMMARY:A", "2026-01-01 A"},
        {"DTSTART:20260101\nSTATUS:CANCELLED", ""},
        {"DTSTART:20240229\nRRULE:FREQ=YEARLY\nEXDATE:20280229", "2032-02-29"},
        {"DTSTART:20340101\nRRULE:FREQ=YEARLY", "2034-01-01; 2035-01-01"},
        {"DTSTART:20260101T090000Z\nSUMMARY:Talk",
         "Line 3: \"Talk\" is left out: it has a time, and only all-day events count."},
        {"DTSTART:20260101\nRRULE:FREQ=YEARLY;COUNT=2",
         "Line 3: an event is left out: it recurs in a way that is not supported."},
        {"DTSTART:20260101\nRECURRENCE-ID:20260101",
         "Line 3: an event is left out: it recurs in a way that is not supported."},
        {"DTSTART:20260101\nDURATION:PT24H", "Line 3: an event is left out: it does not last whole days."},
        {"DTSTART:20260230", "Line 3: an event is left out: \"20260230\" is not a date."},
        {"DTSTART:20260102\nDTEND:20260101", "Line 3: an event is left out: its end does not fit its start."},
        {"DTSTART:20260102\nDTEND:20260103\nDURATION:P1D",
         "Line 3: an event is left out: its end does not fit its start."},
        {"DTSTART:20260101\nDTEND:24260101", "Line 3: an event is left out: it is longer than a year."},
        {"SUMMARY:A", "Line 3: \"A\" is left out: it has no date."},
        {"DTSTART:20260101\nBEGIN:VEVENT\nDTSTART:20260102",
         "Line 3: an event is left out: its end is missing.; 2026-01-02"},
    };
    for (const auto& [event, result] : rows)
        EXPECT_EQ(readEvent(event), QString::fromUtf8(result)) << event.constData();
    const auto cut = read("\xEF\xBB\xBF\n" + calendar("BEGIN:VTIMEZONE\nDTSTART:20260101\nEND:VTIMEZONE").chopped(20));
    EXPECT_EQ(cut.problems, QStringList(u"The file has no end. Events may be missing."_s));
    EXPECT_EQ(read(calendar(QByteArray("BEGIN:VEVENT\nEND:VEVENT\n").repeated(150))).problems.size(), 101);
}

TEST(CalendarFile, whichIsNoneSaysWhatToDo)
{
    const QTemporaryDir folder(inMemory);
    const QString pipe = folder.filePath(u"pipe"_s);
    ASSERT_EQ(mkfifo(qPrintable(pipe), 0600), 0);
    const auto refuses = [](const QString& path, const char* reason) {
        try {
            static_cast<void>(readCalendarFile(path, today));
            ADD_FAILURE() << reason;
        } catch (const FileError& error) {
            EXPECT_THAT(error.what(), testing::HasSubstr(reason));
        }
    };
    refuses(pipe, "it is a folder or a device");
    refuses(folder.path(), "it is a folder or a device");
    refuses(folder.filePath(u"none"_s), "No such file");
    QByteArray event = "BEGIN:VEVENT\nDTSTART:20000101\nDTEND:20010101\nEND:VEVENT\n";
    const QString path = folder.filePath(u"file"_s);
    for (const auto& [text, reason] : {std::pair(QByteArray(), "This is not a calendar file."),
                                       {"BEGIN:VCARD\n", "This is not a calendar file."},
                                       {calendar(QByteArray("X:\0", 3)), "This is not a calendar file."},
                                       {calendar("X:\xFF"), "not in UTF-8"},
                                       {calendar(event.repeated(274)), "more than 100000 days"},
                                       {QByteArray(10'000'001, ' '), "more than 10 MB"}}) {
        QFile file(path);
        ASSERT_TRUE(file.open(QFile::WriteOnly) && file.write(text) == text.size());
        file.close();
        refuses(path, reason);
    }
    ASSERT_EQ(chmod(qPrintable(path), 0), 0);
    const OrdinaryUser user;
    refuses(path, "Permission denied");
}

TEST(CalendarFile, withAnyFaultGivesDatesInOrderOrAnError)
{
    const QByteArray sound =
        calendar("BEGIN:VEVENT\nDTSTART;VALUE=DATE:20260101\nDTEND;VALUE=DATE:20260103\nSUMMARY:J\\,\n "
                 "\xC3\xBC\nRRULE:FREQ=YEARLY\nEXDATE:20280101,20290101\nEND:VEVENT\nBEGIN:VEVENT\n"
                 "DTSTART:20260501\nDURATION:P1W\nBEGIN:VALARM\nEND:VALARM\nEND:VEVENT");
    std::minstd_rand random(20261120);
    for (int round = 0; round < 5000; ++round) {
        QByteArray text = sound;
        for (int fault = 0; fault < 3; ++fault) {
            const auto place = qsizetype(random() % std::size_t(text.size()));
            const auto size = qsizetype(random() % 30);
            if (random() % 2 == 0)
                text.remove(place, size);
            else
                text.replace(place, 1, sound.mid(qsizetype(random() % std::size_t(sound.size())), size));
        }
        try {
            const auto daysOff = read(text).daysOff;
            EXPECT_TRUE(std::ranges::is_sorted(daysOff, std::less_equal(), &DayOff::date)) << text.constData();
        } catch (const CalendarFileError& error) {
            EXPECT_FALSE(error.description().isEmpty());
        }
    }
}
