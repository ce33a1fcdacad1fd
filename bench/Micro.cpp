// SPDX-License-Identifier: GPL-3.0-or-later
#include "AppWindows.h"
#include "AttendanceStatistics.h"
#include "AutostartEntry.h"
#include "BackupService.h"
#include "CalendarPage.h"
#include "ContentView.h"
#include "CountingRecords.h"
#include "DayImport.h"
#include "DayMarker.h"
#include "DayRecords.h"
#include "DaysCsv.h"
#include "DaysCsvReader.h"
#include "DesktopSystemSettings.h"
#include "FreedesktopNotifier.h"
#include "InOfficeCheck.h"
#include "LaunchAtLogin.h"
#include "LocationManager.h"
#include "NetworkManagerAuthorization.h"
#include "NetworkManagerWiFiClient.h"
#include "Plan.h"
#include "RecordContents.h"
#include "RecordPdf.h"
#include "RulePresets.h"
#include "RuleProgress.h"
#include "SampleStore.h"
#include "SystemBus.h"
#include "SystemClock.h"
#include "UndoHistory.h"
#include "ViewParts.h"
#include "ViewSettings.h"
#include "WindowId.h"

#include <QApplication>
#include <QBuffer>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

using namespace Qt::StringLiterals;

namespace {

/// The path of a store of 1,200 months, shared by all benchmarks.
QString sampleStore()
{
    static const QTemporaryDir folder;
    static const QString path = [] {
        QString file = folder.filePath(u"store"_s);
        fillStore(file, 1200);
        return file;
    }();
    return path;
}

AttendanceStatistics statisticsOf(const std::array<Month, 3>& months, const Counting& counting = {})
{
    const QList<const Month*> quarter{&months[0], &months[1], &months[2]};
    return attendanceStatistics(quarter, AppSettings::defaultGoals(), !counting.isUsed(), true, counting);
}

void statisticsOfQuarter(benchmark::State& state)
{
    const std::array months{Month(2026, 1), Month(2026, 2), Month(2026, 3)};
    while (state.KeepRunning())
        benchmark::DoNotOptimize(statisticsOf(months));
}

constexpr DaySpan year2026{QDate::fromJulianDay(2461042), QDate::fromJulianDay(2461406)};

/// With a day off, a day of leave and a day of sickness each month.
DayState sampleState(QDate date)
{
    return date.day() == 6 ? DayState::VACATION_DAY
                           : allDayStates.at(static_cast<std::size_t>(date.day()) % allDayStates.size());
}

Counting sampleCounting()
{
    Counting::Choices choices{.leavesOutVacation = true,
                              .workWeeks = {{year2026.first, Weekdays::mondayToFriday()}},
                              .kinds = {{.id = AbsenceKind::sick, .treatment = Treatment::LeftOut}}};
    for (int month = 1; month <= 12; ++month) {
        choices.daysOff.append({QDate(2026, month, 1)});
        choices.absences[QDate(2026, month, 7)] = AbsenceKind::sick;
    }
    return Counting(choices);
}

CountedDays sampleYear(const Counting& counting)
{
    return {{year2026.first.addDays(-14), year2026.last}, sampleState, counting, false};
}

void quarterStatisticsWithTwelveRules(benchmark::State& state)
{
    const std::array months{Month(2026, 1), Month(2026, 2), Month(2026, 3)};
    const Counting counting = sampleCounting();
    const CountedDays days = sampleYear(counting);
    QList<AttendanceRule> rules;
    for (const RulePreset& preset : rulePresets())
        rules.append(preset.rule);
    rules.resize(12);
    rules[11].span = rules[10].span = AttendanceRule::Span::Year;
    const QDate today(2026, 3, 20);
    while (state.KeepRunning()) {
        benchmark::DoNotOptimize(statisticsOf(months, counting));
        for (const AttendanceRule& rule : rules)
            benchmark::DoNotOptimize(ruleProgress(rule, days, today, today, Qt::Monday));
    }
}

void planOfYear(benchmark::State& state)
{
    const Counting counting = sampleCounting();
    const CountedDays days = sampleYear(counting);
    AttendanceRule rule;
    rule.span = AttendanceRule::Span::Year;
    const QDate today(2026, 1, 20);
    TriedStates tried;
    while (state.KeepRunning()) {
        const CountedDays planned = withTried(days, tried, counting, false);
        tried[today] = DayState::WILL_BE_IN_OFFICE;
        const auto progress = ruleProgress(rule, planned, today, today, Qt::Monday);
        benchmark::DoNotOptimize(
            planPace(*progress, planWeeks(planned, progress->span, rule.weekdays, today, Qt::Monday)));
        benchmark::DoNotOptimize(daysToPlan(planned, Weekdays::mondayToFriday(), today));
    }
}

void countDaysOfYear(benchmark::State& state)
{
    const Counting counting = sampleCounting();
    while (state.KeepRunning())
        benchmark::DoNotOptimize(sampleYear(counting));
}

void fractionsOfQuarter(benchmark::State& state)
{
    const auto statistics = statisticsOf({Month(2026, 1), Month(2026, 2), Month(2026, 3)});
    while (state.KeepRunning())
        benchmark::DoNotOptimize(barFractions(statistics));
}

void openStoreOf1200Months(benchmark::State& state)
{
    const QString path = sampleStore();
    while (state.KeepRunning())
        benchmark::DoNotOptimize(openStore(path));
}

/// The history of a copy of that store, in which each workday is marked.
struct Changes {
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"store"_s);
    const bool isCopied = QFile::copy(sampleStore(), path);
    SystemClock clock;
    std::unique_ptr<ModelContainer> container = openStore(path);
    DayMarker marker{container->mainContext(), clock};
    UndoHistory history{marker};
};

void changesOfADay(benchmark::State& state)
{
    const Changes changes;
    QDate date(2026, 1, 1);
    while (state.KeepRunning()) {
        if (changes.history.changesOf(date).isEmpty() != (date.dayOfWeek() > 5))
            state.SkipWithError("the changes of a day are not found");
        date = date.addDays(1);
    }
}

void undo(benchmark::State& state)
{
    Changes changes;
    while (state.KeepRunning()) {
        if (!changes.history.undo())
            state.SkipWithError("nothing is left to undo");
    }
}

/// All of it, with what is done on the main thread.
void recordOfYears(benchmark::State& state, int years)
{
    Changes changes;
    AppSettings settings;
    CountingRecords counting(changes.marker, settings);
    const DaySpan span{year2026.last.addDays(1).addYears(-years), year2026.last};
    while (state.KeepRunning()) {
        QBuffer buffer;
        buffer.open(QIODevice::WriteOnly);
        const auto contents = recordContents(changes.marker, counting, settings, span, Qt::Monday, changes.clock.now());
        if (!writeRecordPdf(contents, {}, buffer, [](int) { return true; }))
            state.SkipWithError("a record was not written");
    }
}

class PaintCounter : public QObject {
public:
    std::int64_t paints = 0;

    bool eventFilter(QObject* /*watched*/, QEvent* event) override
    {
        paints += event->type() == QEvent::Paint;
        return false;
    }
};

/// What windows need, without a network.
struct Parts {
    const QTemporaryDir folder;
    QSettings settings{folder.filePath(u"settings"_s), QSettings::IniFormat};
    ViewSettings viewSettings{settings};
    AppSettings appSettings;
    SystemClock clock;
    std::unique_ptr<ModelContainer> container = openStore(sampleStore());
    SystemBus systemBus;
    NetworkManagerWiFiClient wifiClient{systemBus};
    NetworkManagerAuthorization authorization{systemBus};
    DesktopSystemSettings systemSettings;
    LocationManagerKey locationManager{authorization, systemSettings};
    FreedesktopNotifier notifier;
    DayMarker marker{container->mainContext(), clock};
    UndoHistory history{marker};
    CountingRecords counting{marker, appSettings};
    InOfficeCheck check{{*container, marker, counting, appSettings, wifiClient, notifier, clock}};
    AutostartEntry loginItem{folder.path(), {}};
    LaunchAtLogin launchAtLogin{loginItem};
    BackupService backups{marker, clock};
    const ViewParts parts{
        container->mainContext(), marker, history,      counting, backups, appSettings, viewSettings, clock, wifiClient,
        locationManager,          check,  launchAtLogin};
};

void showOtherPeriods(benchmark::State& state, int tab, QSize size, qsizetype rules)
{
    Parts parts;
    const auto presets = rulePresets();
    for (const RulePreset& preset : presets.first(rules))
        parts.counting.addRule(preset.rule);
    parts.viewSettings.selectedTab = tab;
    ContentView window(parts.parts);
    window.resize(size);
    window.show();
    QApplication::processEvents();

    auto& view = *window.findChild<CalendarPage*>();
    YearMonth shown = view.month();
    const QDate next = view.span().last.addDays(1);
    YearMonth other{next.year(), next.month()};
    PaintCounter counter;
    view.installEventFilter(&counter);
    while (state.KeepRunning()) {
        std::swap(shown, other);
        view.showPeriod(shown);
        QApplication::processEvents();
    }
    if (counter.paints < state.iterations())
        state.SkipWithError("a period was shown without being painted");
    // The sample is that of the other benchmarks too.
    for (const AttendanceRule& rule : QList(parts.counting.rules().value()))
        parts.counting.removeRule(rule.id);
}

constexpr QSize usualWindow(534, 860);

void monthChange(benchmark::State& state)
{
    showOtherPeriods(state, 1, usualWindow, 0);
}

void monthChangeWithTwelveRules(benchmark::State& state)
{
    showOtherPeriods(state, 1, usualWindow, 12);
}

/// In a window that shows all of it.
void yearChange(benchmark::State& state)
{
    showOtherPeriods(state, 3, QSize(900, 1000), 0);
}

void openWindow(benchmark::State& state, WindowId id)
{
    const Parts parts;
    PaintCounter counter;
    qApp->installEventFilter(&counter);
    while (state.KeepRunning()) {
        AppWindows windows(parts.parts);
        windows.open(id);
        QApplication::processEvents();
    }
    if (counter.paints < state.iterations())
        state.SkipWithError("a window was opened without being painted");
}

/// A store of its own, so that nothing changes the sample.
struct ImportingStore {
    SystemClock clock;
    QTemporaryDir folder;
    std::unique_ptr<ModelContainer> container = openStore(folder.filePath(u"store"_s));
    DayMarker marker{container->mainContext(), clock};
    AppSettings settings;
    CountingRecords counting{marker, settings};
};

QByteArray exportedSample()
{
    const auto container = openStore(sampleStore());
    SystemClock clock;
    const DayMarker marker(container->mainContext(), clock);
    return daysCsv(dayRecords(marker, wholeCalendar()), marker.absences().kinds());
}

void exportOf100Years(benchmark::State& state)
{
    static_cast<void>(sampleStore()); // which takes about as long to fill
    while (state.KeepRunning())
        benchmark::DoNotOptimize(exportedSample());
}

void importOf100Years(benchmark::State& state)
{
    const QByteArray list = exportedSample();
    while (state.KeepRunning()) {
        ImportingStore store;
        const DaysCsvContents contents = DaysCsvReader().read(list);
        const DayImport found(contents.days, contents.kinds, store.marker, store.counting);
        if (found.apply(found.newDays(), true, true) == 0)
            state.SkipWithError("nothing was imported");
    }
}

BENCHMARK(exportOf100Years)->MeasureProcessCPUTime();
BENCHMARK(importOf100Years)->MeasureProcessCPUTime();
BENCHMARK(statisticsOfQuarter)->MeasureProcessCPUTime();
BENCHMARK(quarterStatisticsWithTwelveRules)->MeasureProcessCPUTime();
BENCHMARK(planOfYear)->MeasureProcessCPUTime();
BENCHMARK(countDaysOfYear)->MeasureProcessCPUTime();
BENCHMARK(fractionsOfQuarter)->MeasureProcessCPUTime();
BENCHMARK(monthChange)->MeasureProcessCPUTime();
BENCHMARK(monthChangeWithTwelveRules)->MeasureProcessCPUTime();
BENCHMARK(yearChange)->MeasureProcessCPUTime();
BENCHMARK_CAPTURE(openWindow, settings, WindowId::settings)->Name("openWindow:settings")->MeasureProcessCPUTime();
BENCHMARK_CAPTURE(openWindow, help, WindowId::help)->Name("openWindow:help")->MeasureProcessCPUTime();
BENCHMARK_CAPTURE(openWindow, views, WindowId::calendarViewSettings)
    ->Name("openWindow:calendar view settings")
    ->MeasureProcessCPUTime();
BENCHMARK(openStoreOf1200Months)->MeasureProcessCPUTime();
BENCHMARK(changesOfADay)->MeasureProcessCPUTime();
BENCHMARK(undo)->MeasureProcessCPUTime();
BENCHMARK_CAPTURE(recordOfYears, 1, 1)->Name("recordOfYear:pdf")->MeasureProcessCPUTime();
BENCHMARK_CAPTURE(recordOfYears, 100, 100)->Name("recordOf100Years:pdf")->Iterations(1)->MeasureProcessCPUTime();

} // namespace

int main(int argc, char* argv[])
{
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return EXIT_FAILURE;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication::setStyle(u"Fusion"_s);
    const QApplication application(argc, argv);
    benchmark::AddCustomContext("qt", qVersion());
    benchmark::RunSpecifiedBenchmarks();
}
