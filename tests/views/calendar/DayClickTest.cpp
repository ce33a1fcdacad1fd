// SPDX-License-Identifier: GPL-3.0-or-later
#include "CalendarViewTest.h"

using enum DayState;

namespace {

constexpr auto ctrl = Qt::ControlModifier;
constexpr auto alt = Qt::AltModifier;
constexpr auto shift = Qt::ShiftModifier;

} // namespace

class DayClickTest : public CalendarViewTest {};

TEST_F(DayClickTest, aClickOrSpaceRunsTheOneActionOfTheHeldKeysAndIsOnDiskAtOnce)
{
    const std::tuple<Qt::KeyboardModifiers, DayState, DayState> gestures[]{
        {Qt::NoModifier, UNKNOWN, IN_OFFICE},
        {ctrl, VACATION_DAY, UNKNOWN},
        {ctrl, UNKNOWN, UNKNOWN},
        {alt, VACATION_DAY, WILL_BE_IN_OFFICE},
        {alt, WILL_BE_IN_OFFICE, UNKNOWN},
        {shift, UNKNOWN, VACATION_DAY},
        {shift, VACATION_DAY, UNKNOWN},
        {ctrl | alt | shift, IN_OFFICE, UNKNOWN},
        {alt | shift, IN_OFFICE, WILL_BE_IN_OFFICE},
    };
    const qsizetype index = *november->indexOf(friday);
    auto& button = dayButton(view, friday);
    int changes = 0;
    const auto follower = november->days.addNotifier([&] { ++changes; });
    for (const bool byKey : {false, true}) {
        for (const auto& [held, before, after] : gestures) {
            SCOPED_TRACE(testing::Message()
                         << (byKey ? "Space with " : "click with ") << held << " on " << int(before));
            QList<Day> days = november->days;
            days[index] = {.id = friday, .state = before, .isWorkday = false}; // which a click puts right
            november->days = days;
            changes = 0;
            // To the button itself, because an event through the window lets the event loop turn.
            byKey ? QTest::keyClick(&button, Qt::Key_Space, held) : QTest::mouseClick(&button, Qt::LeftButton, held);
            EXPECT_EQ(dayOnDisk(friday), (Day{friday, after, true}));
            EXPECT_EQ(changes, 1);
        }
    }
}

TEST_F(DayClickTest, aDayHasTheColourOfItsStateAndTodayARing)
{
    for (const ColorScheme scheme : {ColorScheme::Light, ColorScheme::Dark}) {
        applyScheme(scheme);
        const Theme& theme = themeFor(scheme);
        for (const int day : {friday, saturday}) {
            const QColor unknown = day == friday ? theme.unknown : theme.nonWorkday;
            for (const QColor& colour :
                 {unknown, theme.inOffice, theme.outOfOffice, theme.vacationDay, theme.willBeInOffice, unknown}) {
                EXPECT_EQ(painted(dayButton(view, day), 2), colour) << day;
                click(dayButton(view, day));
            }
            mark(*november, day, UNKNOWN); // from outside the view
            EXPECT_EQ(painted(dayButton(view, day), -3) != theme.page, day == friday);
        }
    }
    QTest::mouseDClick(view.windowHandle(), Qt::LeftButton, {}, inWindow(dayButton(view, friday)));
    EXPECT_EQ(state(friday), OUT_OF_OFFICE);
}

TEST_F(DayClickTest, onlyAPressThatStaysOnTheFaceIsAClick)
{
    const QPoint face = inWindow(dayButton(view, friday)), neighbour = inWindow(dayButton(view, saturday));
    const QPoint margin = dayButton(view, friday).mapTo(&view, QPoint(1, 1));
    const std::tuple<const char*, Qt::MouseButton, std::array<QPoint, 3>, DayState> rows[]{
        {"stays", Qt::LeftButton, {face, face + QPoint(9, 5), face + QPoint(9, 5)}, IN_OFFICE},
        {"leaves and comes back", Qt::LeftButton, {face, neighbour, face}, UNKNOWN},
        {"ends in the gap", Qt::LeftButton, {face, face, margin}, UNKNOWN},
        {"begins in the gap", Qt::LeftButton, {margin, face, face}, UNKNOWN},
        {"middle button", Qt::MiddleButton, {face, face, face}, UNKNOWN},
    };
    for (const auto& [name, mouseButton, way, after] : rows) {
        mark(*november, friday, UNKNOWN);
        QTest::mousePress(view.windowHandle(), mouseButton, {}, way[0]);
        moveTo(view, way[1]);
        QTest::mouseRelease(view.windowHandle(), mouseButton, {}, way[2]);
        EXPECT_EQ(state(friday), after) << name;
        EXPECT_EQ(state(saturday), UNKNOWN) << name;
    }
}
