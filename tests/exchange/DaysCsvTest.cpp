// SPDX-License-Identifier: GPL-3.0-or-later
#include "DaysCsv.h"
#include "DaysCsvReader.h"
#include "FileBytes.h"
#include "FileError.h"
#include "Testing.h"

#include <QTemporaryDir>

#include <csignal>
#include <random>
#include <sys/resource.h>

namespace {

DaysCsvContents readList(const QByteArray& text)
{
    return DaysCsvReader().read(text);
}

/// Days as "2026-11-20 IN_OFFICE"; then the problems.
QString readDays(const QByteArray& text)
{
    const auto contents = readList(text);
    QStringList texts;
    for (const DayRecord& day : contents.days)
        texts.append((day.date.toString(Qt::ISODate) + u' ' + rawValue(day.state) + u' ' + day.note).trimmed());
    return (texts + contents.problems).join(u"; "_s);
}

const QString header =
    u"date,state,absence,absence_name,counts_as,note,day_off,day_off_from,changed_by,changed_at,network"_s;

/// Lets files have only so many bytes, as on a full disk, which is noticed when the bytes leave the process.
class NoRoomForFiles {
public:
    explicit NoRoomForFiles(rlim_t size)
    {
        getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit little{size, m_before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &little);
    }
    ~NoRoomForFiles()
    {
        setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_handler);
    }
    Q_DISABLE_COPY_MOVE(NoRoomForFiles)

private:
    rlimit m_before = {};
    void (*m_handler)(int) = std::signal(SIGXFSZ, SIG_IGN);
};

class RandomDays {
public:
    [[nodiscard]] QList<DayRecord> days()
    {
        QList<DayRecord> days;
        for (QDate date(2026, 1, 1); date.year() < 2027; date = date.addDays(1 + number(3)))
            days.append(day(date));
        return days;
    }
    const QList<AbsenceKind> kinds{{AbsenceKind::sick},
                                   {AbsenceKind::training, {}, Treatment::InOffice},
                                   {16, u"=Own, \"kind\""_s, Treatment::LeftOut},
                                   {17, u"sick"_s}};

private:
    int number(int below) { return int(m_random() % unsigned(below)); }
    QString text()
    {
        static const QStringList parts{u","_s, u";"_s, u"\""_s,         u"\n"_s, u"\r\n"_s,  u"\r"_s,
                                       u"="_s, u"+"_s, u"-"_s,          u"@"_s,  u"'"_s,     u"\t"_s,
                                       u" "_s, u"a"_s, u"\U0001F600"_s, u"ß"_s,  u"\uFF1D"_s};
        QString text;
        for (int left = number(6); left > 0; --left)
            text += parts.at(number(int(parts.size())));
        return text;
    }
    DayRecord day(const QDate& date)
    {
        DayRecord day{.date = date, .state = allDayStates.at(std::size_t(number(5))), .note = text()};
        if (day.state == DayState::OUT_OF_OFFICE)
            day.absenceKind = (QList{0, AbsenceKind::sick, AbsenceKind::training, 16, 17}).at(number(5));
        if (number(2) == 0)
            day.dayOff = DayOff{date, text(), DayOffSource(1 + number(3))};
        if (number(2) == 0)
            day.lastChange = DayChange{.time = 1'000'003LL * number(2'000'000),
                                       .date = date,
                                       .after = day.state,
                                       .by = ChangedBy(1 + number(7)),
                                       .network = text(),
                                       .absenceAfter = day.absenceKind};
        return day;
    }

    std::minstd_rand m_random{20261120};
};

} // namespace

TEST(DaysCsv, readsAsItWasWritten)
{
    RandomDays random;
    for (int round = 0; round < 20; ++round) {
        auto days = random.days();
        const auto read = readList(daysCsv(days, random.kinds));
        EXPECT_EQ(read.problems, QStringList());
        QHash<int, int> numbers; // own kinds are numbered anew
        for (const AbsenceKind& kind : read.kinds) {
            const auto own = std::ranges::find(random.kinds, kind.name, &AbsenceKind::name);
            ASSERT_TRUE(own != random.kinds.end() && own->treatment == kind.treatment);
            numbers.insert(own->id, kind.id);
        }
        for (DayRecord& day : days) {
            day.absenceKind = numbers.value(day.absenceKind, day.absenceKind);
            if (day.lastChange)
                day.lastChange->absenceAfter = day.absenceKind;
        }
        EXPECT_TRUE(read.days == days);
    }
    const DayRecord day{.date = {2026, 11, 20}, .note = u"=1+1"_s};
    const DayRecord wide{.date = {2026, 11, 21}, .note = u"\uFF1D1 "_s};
    EXPECT_EQ(daysCsv({day, wide}, {}), header.toUtf8() + "\r\n2026-11-20,UNKNOWN,,,,'=1+1,,,,,\r\n"
                                                          "2026-11-21,UNKNOWN,,,,\"'\uFF1D1 \",,,,,\r\n");
}

TEST(DaysCsv, plainListsAreReadAndWhatIsWrongIsNamed)
{
    const struct {
        QByteArray text;
        const char* result;
    } rows[] = {
        {"2026-11-20,IN_OFFICE", "2026-11-20 IN_OFFICE"},
        {"\xEF\xBB\xBF"
         "Date,State\r\n2026-11-20, in the office ",
         "2026-11-20 IN_OFFICE"},
        {"sep=;\n2026-11-20;VACATION_DAY\r2026-11-19;\"Vacation Day\"",
         "2026-11-19 VACATION_DAY; 2026-11-20 VACATION_DAY"},
        {"Datum\tZustand\n2026-11-20\tout of office\n\n\t\n", "2026-11-20 OUT_OF_OFFICE"},
        {"state;note;X;date\nUNKNOWN;\"a\n\"\"b\"\"\";;2026-11-20", "2026-11-20 UNKNOWN a\n\"b\""},
        {"date,state\n2026-11-20,IN_OFFICE\n2026-11-20,UNKNOWN",
         "2026-11-20 IN_OFFICE; Line 3 is left out: its date is in line 2 already."},
        {"date,state\n=1+1,IN_OFFICE", "Line 2 is left out: \"=1+1\" is not a date such as 2026-11-20."},
        {"date,state\n-001-01-01,IN_OFFICE", "Line 2 is left out: \"-001-01-01\" is not a date such as 2026-11-20."},
        {"date,state\n2026-02-30,IN_OFFICE", "Line 2 is left out: \"2026-02-30\" is not a date such as 2026-11-20."},
        {"date,state,note\n2026-11-20,HERE,\"\n\"\n2026-11-21",
         "Line 2 is left out: \"HERE\" is not a state of a day.; "
         "Line 4 is left out: its number of cells is 1, and that of the first line 3."},
        {"date,state,absence\n2026-11-20,IN_OFFICE,SICK",
         "Line 2 is left out: only a day out of office has a kind of absence."},
        {"date,state\n2026-11-20,\"IN_OFFICE\n2026-11-21,IN_OFFICE",
         "Line 2 is left out: a quotation mark is never closed, so the rest of the file is left out."},
        {"date,state\n2026-11-20,\"IN\"_OFFICE", "Line 2 is left out: there is text after a closing quotation mark."},
        {"date,state\n2026-11-20,A\"B",
         "Line 2 is left out: there is a quotation mark within a cell that does not begin with one."},
        {"date,state,changed_by,changed_at\n2026-11-20,IN_OFFICE,HAND,2026-11-20T08:00",
         "Line 2 is left out: \"2026-11-20T08:00\" is not a time such as 2026-11-20T08:15:00.000Z."},
        {"date,state,changed_by,changed_at\n2026-11-20,IN_OFFICE,HAND,1969-12-31T23:59:59Z",
         "Line 2 is left out: \"1969-12-31T23:59:59Z\" is not a time such as 2026-11-20T08:15:00.000Z."},
        {"date,state,changed_by\n2026-11-20,IN_OFFICE,ME", "Line 2 is left out: \"ME\" is nobody who changes days."},
        {"date,state,absence,counts_as\n2026-11-20,OUT_OF_OFFICE,Parents,HALF",
         "Line 2 is left out: \"HALF\" is not a way to count."},
        {"date,state,day_off,day_off_from\n2026-11-20,,X,MOON",
         "Line 2 is left out: \"MOON\" is not a source of days off."},
        {"date,state\n2026-11-20,1234567890123456789012345678901234567890x",
         "Line 2 is left out: \"1234567890123456789012345678901234567890…\" is not a state of a day."},
        {"date,state\n" + QByteArray(100, ','), "Line 2 is left out: it has too many cells."},
    };
    for (const auto& [text, result] : rows)
        EXPECT_EQ(readDays(text), QString::fromUtf8(result)) << text.left(100).constData();
    EXPECT_EQ(readList("2026-11-20,X\n" + QByteArray("x,y\n").repeated(1000)).problems.size(), 101);
    QByteArray kinds = "date,state,absence";
    for (QDate date(2026, 1, 1); date.dayOfYear() <= 101; date = date.addDays(1))
        kinds +=
            '\n' + date.toString(Qt::ISODate).toUtf8() + ",OUT_OF_OFFICE,Kind " + QByteArray::number(date.dayOfYear());
    EXPECT_EQ(readList(kinds).problems,
              QStringList(u"Line 102 is left out: the list names more than 100 kinds of absence."_s));
    const auto own =
        readList("date,state,absence\n2026-11-20,OUT_OF_OFFICE,Parents\n2026-11-21,OUT_OF_OFFICE,sick").days;
    EXPECT_EQ(own.first().absenceKind, AbsenceKind::firstOwn);
    EXPECT_EQ(own.last().absenceKind, AbsenceKind::sick);
    EXPECT_EQ(readList("date,state,day_off\n2026-11-20,,X").days.first().dayOff->source, DayOffSource::File);
}

TEST(DaysCsv, whatIsNoListSaysWhatToDo)
{
    QByteArray days = "date,state";
    for (int day = 0; day < 100'000; ++day)
        days += '\n' + QDate(1900, 1, 1).addDays(day).toString(Qt::ISODate).toLatin1() + ',';
    EXPECT_EQ(readList(days).days.size(), 100'000);
    const QTemporaryDir folder(inMemory);
    const QString path = folder.filePath(u"list.csv"_s);
    const auto reason = [&](const auto& action) {
        try {
            action();
        } catch (const FileError& error) {
            return error.description();
        }
        return u"none"_s;
    };
    for (const auto& [text, expected] :
         {std::pair(QByteArray(), "This is not a list of days."),
          {"a,b,c\n", "This is not a list of days."},
          {"\xFF\xFE"
           "2",
           "not in UTF-8"},
          {"date,state\n2026-11-20,B\xFCro", "not in UTF-8"},
          {QByteArray("date,state\0", 11), "not a text file"},
          {"date,state\n" + QByteArray("x,y\n").repeated(1'000'000), "More than 10000 lines"},
          {days + "\n2300-01-01,", "more than 100000 days"}}) {
        writeFile(path, text);
        EXPECT_THAT(reason([&] { static_cast<void>(readDaysCsvFile(path)); }).toStdString(),
                    testing::HasSubstr(expected));
    }
    QFile sparse(path);
    EXPECT_TRUE(sparse.resize(5'000'000'000));
    EXPECT_THAT(reason([&] { static_cast<void>(readDaysCsvFile(path)); }).toStdString(), testing::HasSubstr("50 MB"));
    EXPECT_THAT(reason([&] { writeFile(u"/dev/full"_s, "x"); }).toStdString(), testing::HasSubstr("cannot be written"));
    ASSERT_TRUE(QFile(path).resize(1) && QFile::setPermissions(folder.path(), QFile::ReadOwner | QFile::ExeOwner));
    {
        const OrdinaryUser user;
        EXPECT_THAT(reason([&] { writeFile(path, "xx"); }).toStdString(), testing::HasSubstr("cannot be written"));
    }
    ASSERT_TRUE(QFile::setPermissions(folder.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    for (const int room : {0, 100'000}) {
        const NoRoomForFiles full(static_cast<rlim_t>(room));
        EXPECT_THAT(reason([&] { writeFile(path, QByteArray(2 + 2 * room, 'x')); }).toStdString(),
                    testing::HasSubstr("cannot be written: File too large"));
    }
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files).size(), 1);
    EXPECT_EQ(QFileInfo(path).size(), 1);
}
