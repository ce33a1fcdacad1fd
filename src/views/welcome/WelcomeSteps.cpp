// SPDX-License-Identifier: GPL-3.0-or-later
#include "WelcomeSteps.h"

#include "AppIcon.h"
#include "AppSettings.h"
#include "CalendarView.h"
#include "Card.h"
#include "Clock.h"
#include "DaySwatch.h"
#include "DaysPerWeekGoalView.h"
#include "GeneralSettingsView.h"
#include "InOfficeModelUpdater.h"
#include "Labels.h"
#include "LaunchAtLogin.h"
#include "LocationStatus.h"
#include "Month.h"
#include "Page.h"
#include "ProgressWidgetView.h"
#include "SsidSettingsView.h"

#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

// A column with a heading and an explanation, which are what a screen reader says of the step.
QVBoxLayout* makeColumn(QWidget* step, const QString& heading, const QString& words)
{
    step->setObjectName("step"_L1);
    step->setAccessibleName(heading);
    step->setAccessibleDescription(words);
    auto* column = new QVBoxLayout(step);
    column->setContentsMargins(32, 28, 32, 20);
    column->setSpacing(10);
    column->addWidget(labels::heading(heading));
    column->addWidget(labels::dim(words));
    column->addSpacing(8);
    return column;
}

void addCard(QVBoxLayout& column, QWidget* contents)
{
    column.addWidget(Card::around(contents));
    column.addStretch();
}

void addFirstCard(QVBoxLayout& column, QWidget* contents, const QString& nextTitle)
{
    column.addWidget(Card::around(contents));
    column.addSpacing(14);
    column.addWidget(labels::strong(nextTitle));
}

// The icon of a notification with its texts.
QWidget* makeSampleNotification()
{
    auto* icon = new QLabel;
    icon->setPixmap(appIcon().pixmap(QSize(32, 32), icon->devicePixelRatioF()));
    auto* notification = new QWidget;
    auto* row = new QHBoxLayout(notification);
    row->setContentsMargins({});
    row->setSpacing(14);
    row->addWidget(icon, 0, Qt::AlignTop);
    auto* texts = new QVBoxLayout;
    texts->setSpacing(4);
    texts->addWidget(labels::strong(InOfficeModelUpdater::tr("Pellory")));
    texts->addWidget(labels::text(InOfficeModelUpdater::tr("You have been marked as in the office today")));
    row->addLayout(texts, 1);
    return notification;
}

// A day in each state, and on a weekend.
class ColorKey : public QWidget {
    Q_DECLARE_TR_FUNCTIONS(WelcomeSteps)

public:
    ColorKey()
    {
        auto* grid = new QGridLayout(this);
        grid->setContentsMargins({});
        grid->setHorizontalSpacing(12);
        grid->setVerticalSpacing(10);
        for (const int textColumn : {1, 3})
            grid->setColumnStretch(textColumn, 1);
        constexpr int rows = 3;
        int place = 0;
        const auto add = [grid, &place](const Day& day, const QString& words) {
            const int row = place % rows, column = place / rows * 2;
            grid->addWidget(new DaySwatch(day), row, column);
            grid->addWidget(labels::text(words), row, column + 1);
            ++place;
        };
        for (const DayState state : allDayStates)
            add({.id = 1, .state = state, .isWorkday = true}, description(state));
        add({.id = 1}, tr("Weekend Day"));
    }
};

// A month as it may look one day.
std::shared_ptr<Month> makeSampleMonth(QDate today)
{
    auto month = std::make_shared<Month>(today.year(), today.month());
    constexpr std::array pattern{DayState::IN_OFFICE, DayState::OUT_OF_OFFICE, DayState::IN_OFFICE,
                                 DayState::OUT_OF_OFFICE, DayState::WILL_BE_IN_OFFICE};
    QList<Day> days = month->days;
    for (std::size_t next = 0; Day & day : days) {
        if (day.isInMonth() && day.isWorkday && next < 2 * pattern.size())
            day.state = pattern.at(next++ % pattern.size());
    }
    month->days = days;
    return month;
}

} // namespace

QWidget* WelcomeSteps::makeIntroduction(const CalendarParts& parts)
{
    auto* step = new QWidget;
    auto* column = makeColumn(step, tr("Welcome to Pellory"),
                              tr("Mark where you spend each day, and see how far you are from your goals. Try it on "
                                 "this sample month: click a day to change it, or right-click it for all states."));
    const auto sample = makeSampleMonth(parts.clock.today());
    auto* calendar = new CalendarView(parts, true);
    calendar->setContentsMargins(16, 12, 16, 12);
    calendar->setMonth(sample);
    auto* tracker = new ProgressWidgetView(parts.settings, parts.viewSettings, PeriodWord::Month);
    tracker->setMonths({sample});
    column->addWidget(calendar, 0, Qt::AlignHCenter);
    column->addSpacing(8);
    column->addWidget(tracker);
    column->addStretch();
    return new Page(step);
}

QWidget* WelcomeSteps::makeGoals(AppSettings& settings, const ViewSettings& viewSettings, const Clock& clock)
{
    auto* step = new QWidget;
    auto* column = makeColumn(step, tr("Your goals"),
                              tr("On average, how many days a week do you want or need to be in the office? The "
                                 "progress tracker shows how many days you still need for each goal."));
    addFirstCard(*column, new DaysPerWeekGoalView(settings, false), tr("In the sample month"));
    auto* tracker = new ProgressWidgetView(settings, viewSettings, PeriodWord::Month);
    tracker->setMonths({makeSampleMonth(clock.today())});
    auto* card = Card::around(tracker);
    card->layout()->setContentsMargins(0, 12, 0, 10); // the tracker has room beside it
    column->addWidget(card);
    column->addStretch();
    return new Page(step);
}

QWidget* WelcomeSteps::makeGeneral(AppSettings& settings, LaunchAtLogin& launchAtLogin)
{
    auto* step = new QWidget;
    auto* column = makeColumn(step, tr("Always there, never in the way"),
                              tr("Pellory can start without a window when you log in, and notify you when it marks a "
                                 "day."));
    addFirstCard(*column, new GeneralSettingsView(settings, launchAtLogin, true), tr("When it marks a day"));
    addCard(*column, makeSampleNotification());
    return new Page(step);
}

QWidget* WelcomeSteps::makeWiFi(AppSettings& settings, WiFiClient& wifiClient, LocationManager& locationManager,
                                InOfficeCheck& check)
{
    auto* step = new QWidget;
    auto* column = makeColumn(step, tr("Days that mark themselves"),
                              tr("When a Wi-Fi network of your office is in range, Pellory can mark the day for you. "
                                 "Nothing about it leaves this computer."));
    column->addWidget(new LocationStatus(locationManager));
    column->addSpacing(4);
    addCard(*column, new SsidSettingsView(settings, wifiClient, locationManager, check, false));
    return new Page(step);
}

QWidget* WelcomeSteps::makeSummary(const AppSettings& settings, const LaunchAtLogin& launchAtLogin)
{
    auto* step = new QWidget;
    auto* column = makeColumn(step, tr("All set"),
                              tr("These are your choices. You can change them later in the settings (Ctrl+,). Press "
                                 "F1 for help."));
    auto* list = new QWidget;
    auto* lines = new QVBoxLayout(list);
    lines->setContentsMargins({});
    lines->setSpacing(8);
    const auto add = [lines, step](const QString& line) {
        lines->addWidget(labels::text(line));
        step->setAccessibleDescription(step->accessibleDescription() + u' ' + line + u'.');
    };
    QStringList goals;
    for (const auto& goal : settings.daysPerWeekGoals.value())
        goals.append(goal->wantedDaysPerWeek);
    add(goals.isEmpty() ? tr("No goals") : tr("Goals: %1 days per week").arg(goals.join(", "_L1)));
    add(settings.wifiTrackingEnabled ? tr("Automatic tracking is on") : tr("Automatic tracking is off"));
    const auto networks = settings.inOfficeSsids.value().size();
    add(tr("Office networks: %1").arg(networks));
    if (settings.wifiTrackingEnabled && networks == 0)
        lines->addWidget(
            labels::error(tr("No office network is set, so no day is marked as in the office. Go back to add one.")));
    add(settings.notificationsEnabled ? tr("Notifications are on") : tr("Notifications are off"));
    add(launchAtLogin.isEnabled() ? tr("Pellory starts at login") : tr("Pellory does not start at login"));
    addFirstCard(*column, list, tr("What the colours mean"));
    addCard(*column, new ColorKey);
    return new Page(step);
}
