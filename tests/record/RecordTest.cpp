// SPDX-License-Identifier: GPL-3.0-or-later
#include "AppSettings.h"
#include "CountingRecords.h"
#include "DayMarker.h"
#include "DayNote.h"
#include "Eventually.h"
#include "FixedClock.h"
#include "ModelContainer.h"
#include "ModelContext.h"
#include "Month.h"
#include "RecordContents.h"
#include "RecordCsv.h"
#include "RecordFigures.h"
#include "RecordJob.h"
#include "RecordPdf.h"
#include "RecordTexts.h"
#include "Testing.h"

#include <QBuffer>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>

using testing::HasSubstr;

/// A year with a week in the office each month, on the morning of Friday 20 November 2026.
class RecordTest : public testing::Test {
protected:
    RecordTest()
    {
        settings->daysPerWeekGoals = {Goal::create(u"1"_s, u"low"_s), Goal::create(u"4"_s, {})};
        context.insert(settings);
        QList<DayMark> marks;
        for (int month = 1; month <= 12; ++month) {
            for (int day = 10; day <= 14; ++day)
                marks.append({{2026, month, day}, DayState::IN_OFFICE});
        }
        marker.mark(marks, ChangedBy::Hand);
        marker.mark({{{2026, 11, 16}, DayState::OUT_OF_OFFICE, AbsenceKind::sick},
                     {{2026, 11, 17}, DayState::VACATION_DAY},
                     {{2026, 11, 24}, DayState::WILL_BE_IN_OFFICE}},
                    ChangedBy::Restore);
    }

    [[nodiscard]] RecordContents contents(DaySpan span) const
    {
        return recordContents(marker, counting, *settings, span, Qt::Monday, clock.now());
    }
    [[nodiscard]] RecordContents november() const { return contents({{2026, 11, 1}, {2026, 11, 30}}); }
    /// The pages of a PDF.
    [[nodiscard]] static qsizetype pagesOf(const QByteArray& pdf) { return pdf.count("/Type /Page\n"); }
    [[nodiscard]] static QByteArray pdfOf(const RecordContents& contents, const RecordForm& form)
    {
        QBuffer buffer;
        buffer.open(QIODevice::WriteOnly);
        EXPECT_TRUE(writeRecordPdf(contents, form, buffer, [](int) { return true; }));
        return buffer.data();
    }
    void write(QDate date, const QString& text) { marker.notes().write(marker.notes().noteOf(date), text); }

    const QTemporaryDir folder{inMemory};
    ModelContainer container{{.name = {}, .path = folder.filePath(u"Pellory.store"_s)}};
    ModelContext& context = container.mainContext();
    const std::shared_ptr<AppSettings> settings = std::make_shared<AppSettings>();
    FixedClock clock;
    DayMarker marker{context, clock};
    CountingRecords counting{marker, *settings};
};

TEST_F(RecordTest, itsTotalsAreThoseOfTheTrackersAndRules)
{
    const auto figures = [this](DaySpan span) {
        QStringList rows;
        for (const RecordTotal& total : recordTotals(contents(span))) {
            const AttendanceStatistics& counted = total.statistics;
            rows += u"%1: %2 of %3, %4 out, %5 planned, %6 left"_s.arg(record_texts::period(total.span))
                        .arg(counted.inOffice)
                        .arg(counted.workdays)
                        .arg(total.outOfOffice)
                        .arg(counted.planned)
                        .arg(counted.remainingDays);
        }
        return rows;
    };
    EXPECT_EQ(figures({{2026, 11, 11}, {2026, 11, 16}}),
              QStringList(u"11 November 2026 to 16 November 2026: 4 of 4, 1 out, 0 planned, 0 left"_s));
    EXPECT_EQ(figures({{2026, 9, 30}, {2026, 12, 31}}),
              (QStringList{u"30 September 2026 to 30 September 2026: 0 of 1, 0 out, 0 planned, 1 left"_s,
                           u"October 2026: 5 of 22, 0 out, 0 planned, 13 left"_s,
                           u"November 2026: 5 of 21, 1 out, 1 planned, 12 left"_s,
                           u"December 2026: 5 of 23, 0 out, 0 planned, 14 left"_s,
                           u"Q4 2026: 15 of 66, 1 out, 1 planned, 38 left"_s,
                           u"30 September 2026 to 31 December 2026: 15 of 67, 1 out, 1 planned, 39 left"_s}));
    EXPECT_EQ(figures({{2026, 1, 1}, {2026, 12, 31}}).size(), 12 + 4 + 1);
    counting.setTreatment(AbsenceKind::sick, Treatment::LeftOut);
    counting.setLeavesOutVacation(true);
    counting.addDaysOff({{.date = {2026, 11, 10}}});
    EXPECT_EQ(figures({{2026, 11, 1}, {2026, 11, 30}}),
              QStringList(u"November 2026: 5 of 18, 0 out, 1 planned, 10 left"_s));
}

TEST_F(RecordTest, rulesAreToldInTheirWholeSpansThatThePeriodTouches)
{
    counting.addRule(
        {.name = u"weekly"_s, .amount = 200, .unit = AttendanceRule::Unit::Days, .span = AttendanceRule::Span::Week});
    counting.addRule({.name = u"yearly"_s, .span = AttendanceRule::Span::Year});
    counting.addRule({.name = u"earlier"_s, .until = QDate(2025, 1, 1)});
    const auto rules = recordedRules(november());
    ASSERT_EQ(rules.size(), 2);
    EXPECT_EQ(rules[0].spans.size(), 6);
    EXPECT_EQ(rules[0].spans.first().span.first, QDate(2026, 10, 26));
    EXPECT_EQ(rules[0].kept, (SpansKept{1, 3})) << "the weeks that are over";
    ASSERT_EQ(rules[1].spans.size(), 1);
    EXPECT_EQ(rules[1].spans.first().counted, 60);
}

TEST_F(RecordTest, theTableHasALineADayThatNoSpreadsheetMisreads)
{
    const auto locale = scopedLocale(QLocale(QLocale::German));
    write({2026, 11, 13}, u"=SUM(A1);\n\"quoted\""_s);
    counting.addDaysOff({{.date = {2026, 11, 15}, .name = u"Ü, @"_s}});
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    EXPECT_TRUE(writeRecordCsv(contents({{2026, 11, 13}, {2026, 11, 17}}), {}, buffer, [](int) { return true; }));
    EXPECT_EQ(buffer.data(),
              "\xEF\xBB\xBF"
              "Date;Weekday;State;Kind;Day Off;Workday;In the Office;Note;Set By;Set At\r\n"
              "2026-11-13;Freitag;In the Office;;;1;1;\"'=SUM(A1);\n\"\"quoted\"\"\";By hand;2026-11-20 09:00:00\r\n"
              "2026-11-14;Samstag;In the Office;;;0;1;;By hand;2026-11-20 09:00:00\r\n"
              "2026-11-15;Sonntag;Unknown;;Ü, @;0;0;;;\r\n"
              "2026-11-16;Montag;Out of Office;Sick;;1;0;;Restored from a backup;2026-11-20 09:00:00\r\n"
              "2026-11-17;Dienstag;Vacation Day;;;1;0;;Restored from a backup;2026-11-20 09:00:00\r\n");
}

TEST_F(RecordTest, noRowIsLostOnThePages)
{
    using Days = RecordForm::Days;
    const DaySpan year{{2026, 1, 1}, {2026, 12, 31}};
    EXPECT_EQ(pagesOf(pdfOf(november(), {})), 2);
    EXPECT_EQ(pagesOf(pdfOf(contents(year), {})), 13) << "the figures, and a month a page";
    EXPECT_EQ(pagesOf(pdfOf(contents(year), {.days = Days::Grid, .hasNotes = false, .hasChanges = false})), 7);
    write({2026, 11, 13}, u"A long note. "_s.repeated(2000));
    EXPECT_GT(pagesOf(pdfOf(november(), {.paper = QPageSize::Letter})), 5) << "higher than a page";
    const QByteArray pdf = pdfOf(november(), {});
    EXPECT_THAT(pdf.toStdString(), HasSubstr("/Creator"));
}

TEST_F(RecordTest, whatGoesWrongLeavesTheFileThatWasThere)
{
    const QString old = folder.filePath(u"old.pdf"_s);
    const auto contentsOf = [](const QString& path) {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    };
    const RecordContents twentyYears = contents({{2000, 1, 1}, {2019, 12, 31}});
    const auto outcome = [&twentyYears](const QString& path, const std::function<void(RecordJob&)>& meanwhile = {}) {
        RecordJob job;
        QString said;
        QObject::connect(&job, &RecordJob::saved, [&] { said = u"saved"_s; });
        QObject::connect(&job, &RecordJob::stopped, [&] { said = u"stopped"_s; });
        QObject::connect(&job, &RecordJob::failed, [&](const QString& reason) { said = reason; });
        job.start(twentyYears, {}, path);
        if (meanwhile)
            meanwhile(job);
        EXPECT_TRUE(eventually([&] { return !job.isRunning(); }));
        return said;
    };
    {
        QFile file(old);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write("old") == 3);
    }
    EXPECT_THAT(outcome(folder.filePath(u"gone/a.pdf"_s)).toStdString(), HasSubstr("The folder is not there"));
    const QString pipe = folder.filePath(u"pipe"_s);
    ASSERT_EQ(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    EXPECT_THAT(outcome(pipe).toStdString(), HasSubstr("There is already a folder or a device"));
    EXPECT_EQ(outcome(old, [](RecordJob& job) { job.stop(); }), u"stopped"_s);
    {
        // A disk that takes no more.
        rlimit before{};
        getrlimit(RLIMIT_FSIZE, &before);
        const rlimit little{10'000, before.rlim_max};
        const auto handler = std::signal(SIGXFSZ, SIG_IGN);
        setrlimit(RLIMIT_FSIZE, &little);
        EXPECT_THAT(outcome(old).toStdString(), HasSubstr("The disk did not take the file"));
        setrlimit(RLIMIT_FSIZE, &before);
        static_cast<void>(std::signal(SIGXFSZ, handler));
    }
    QFile::setPermissions(folder.path(), QFileDevice::ReadOwner | QFileDevice::ExeOwner);
    {
        const OrdinaryUser user;
        EXPECT_THAT(outcome(old).toStdString(), HasSubstr("Pellory may not write there"));
    }
    QFile::setPermissions(folder.path(), QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
    EXPECT_EQ(contentsOf(old), "old");
    EXPECT_EQ(QDir(folder.path()).entryList({u"*.pdf*"_s}), QStringList(u"old.pdf"_s)) << "no draft is left";
    EXPECT_EQ(outcome(old), u"saved"_s);
    EXPECT_TRUE(contentsOf(old).startsWith("%PDF"));
}
