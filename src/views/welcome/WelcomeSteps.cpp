// SPDX-License-Identifier: GPL-3.0-or-later
#include "WelcomeSteps.h"

#include "AppSettings.h"
#include "Button.h"
#include "ButtonRow.h"
#include "CalendarView.h"
#include "Card.h"
#include "Clock.h"
#include "DaysPerWeekGoalView.h"
#include "Follow.h"
#include "GeneralSettingsView.h"
#include "Labels.h"
#include "LaunchAtLogin.h"
#include "LocationManager.h"
#include "Month.h"
#include "ProgressWidgetView.h"
#include "Rows.h"
#include "SsidSettingsView.h"
#include "ViewParts.h"
#include "WelcomeView.h"

#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

// A column of a step, under its heading and a few words.
QVBoxLayout* makeColumn(QWidget* step, const QString& heading, const QString& words)
{
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

// A month as it may look some day, which belongs to no store.
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

// The way to the permission to learn the names of networks.
class LocationStatus : public QWidget {
public:
    explicit LocationStatus(LocationManager& manager)
        : m_text(labels::text({}))
        , m_grant(new Button(WelcomeView::tr("Grant Location Permission")))
        , m_open(new Button(WelcomeView::tr("Open System Settings")))
    {
        m_grant->setObjectName("grant"_L1);
        auto* column = new QVBoxLayout(this);
        column->setContentsMargins({});
        column->addWidget(m_text);
        auto* buttons = new ButtonRow(Qt::AlignLeft);
        buttons->add(m_grant);
        buttons->add(m_open);
        column->addWidget(buttons);
        connect(m_grant, &QAbstractButton::clicked, &manager.locationManager(),
                &LocationAuthorization::requestAlwaysAuthorization);
        connect(m_open, &QAbstractButton::clicked, &manager, &LocationManager::openLocationSettings);
        follow(manager.locationPermissionStatus, this, [this, &manager] { show(manager.locationPermissionStatus); });
    }

private:
    using QWidget::show;

    void show(AuthorizationStatus status)
    {
        const bool isGranted = isAccessGranted(status);
        m_text->setText(isGranted ? WelcomeView::tr("Location access: allowed. Pellory can see the names of networks.")
                                  : WelcomeView::tr("Location access: missing. Pellory cannot scan for networks."));
        m_grant->setVisible(!isGranted);
        m_grant->setEnabled(status == AuthorizationStatus::notDetermined);
        m_open->setVisible(!isGranted);
    }

    QLabel* m_text;
    Button* m_grant;
    Button* m_open;
};

} // namespace

QWidget* welcome::makeIntroduction(const ViewParts& parts)
{
    auto* step = new QWidget;
    auto* column =
        makeColumn(step, WelcomeView::tr("Welcome to Pellory"),
                   WelcomeView::tr("Mark where you spend each day, and see how far you are from your goals. Try it on "
                                   "this sample month: a click changes a day, a right click offers all states."));
    const auto sample = makeSampleMonth(parts.clock.today());
    auto* calendar = new CalendarView(parts.context, parts.viewSettings, parts.clock, true);
    calendar->setContentsMargins(16, 12, 16, 12);
    calendar->setMonth(sample);
    auto* tracker = new ProgressWidgetView(parts.settings, parts.viewSettings, PeriodWord::Month);
    tracker->setMonths({sample});
    column->addWidget(calendar, 0, Qt::AlignHCenter);
    column->addSpacing(8);
    addCentred(*column, tracker);
    column->addStretch();
    return step;
}

QWidget* welcome::makeGoals(const ViewParts& parts)
{
    auto* step = new QWidget;
    auto* column =
        makeColumn(step, WelcomeView::tr("Your goals"),
                   WelcomeView::tr("How many days a week do you want, or have, to be in the office on average? The "
                                   "progress tracker shows how many days you still need for each goal."));
    addCard(*column, new DaysPerWeekGoalView(parts.settings, false));
    return step;
}

QWidget* welcome::makeGeneral(const ViewParts& parts)
{
    auto* step = new QWidget;
    auto* column =
        makeColumn(step, WelcomeView::tr("Always there, never in the way"),
                   WelcomeView::tr("Pellory can start with your session, without a window, and tell you what it "
                                   "has marked."));
    addCard(*column, new GeneralSettingsView(parts, true));
    return step;
}

QWidget* welcome::makeWiFi(const ViewParts& parts)
{
    auto* step = new QWidget;
    auto* column = makeColumn(step, WelcomeView::tr("Days that mark themselves"),
                              WelcomeView::tr("When a Wi-Fi network of your office is in range, Pellory can mark "
                                              "the day for you. Nothing about it leaves this computer."));
    column->addWidget(new LocationStatus(parts.locationManager.defaultValue()));
    column->addSpacing(4);
    addCard(*column, new SsidSettingsView(parts, false));
    return step;
}

QWidget* welcome::makeSummary(const ViewParts& parts)
{
    const AppSettings& settings = parts.settings;
    auto* step = new QWidget;
    auto* column = makeColumn(step, WelcomeView::tr("All set"),
                              WelcomeView::tr("This is what you have chosen. You can change all of it later in the "
                                              "settings (Ctrl+,), and F1 explains the colours."));
    auto* list = new QWidget;
    auto* lines = new QVBoxLayout(list);
    lines->setContentsMargins({});
    lines->setSpacing(8);
    const auto add = [lines](const QString& line) { lines->addWidget(labels::text(line)); };
    QStringList goals;
    for (const auto& goal : settings.daysPerWeekGoals.value())
        goals.append(goal->wantedDaysPerWeek);
    add(goals.isEmpty() ? WelcomeView::tr("No goals")
                        : WelcomeView::tr("Goals: %1 days per week").arg(goals.join(", "_L1)));
    add(settings.wifiTrackingEnabled ? WelcomeView::tr("Automatic tracking is on")
                                     : WelcomeView::tr("Automatic tracking is off"));
    add(WelcomeView::tr("Office networks: %1").arg(settings.inOfficeSsids.value().size()));
    add(settings.notificationsEnabled ? WelcomeView::tr("Notifications are on")
                                      : WelcomeView::tr("Notifications are off"));
    add(parts.launchAtLogin.isEnabled() ? WelcomeView::tr("Pellory starts at login")
                                        : WelcomeView::tr("Pellory does not start at login"));
    addCard(*column, list);
    return step;
}
