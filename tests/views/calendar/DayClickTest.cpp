// SPDX-License-Identifier: GPL-3.0-or-later
#include "CalendarViewTest.h"

using enum DayState;

namespace {

constexpr auto ctrl = Qt::ControlModifier;
constexpr auto alt = Qt::AltModifier;
constexpr auto shift = Qt::ShiftModifier;

} // namespace

class DayClickTest : public CalendarViewTest {};

TEST_F(DayClickTest, aClickOrSpaceRunsTheOneActionOfTheHeldKeys)
{
    const std::tuple<Qt::KeyboardModifiers, DayState, DayState> gestures[]{
        {Qt::NoModifier, UNKNOWN, IN_OFFICE},
        {Qt::NoModifier, WILL_BE_IN_OFFICE, UNKNOWN},
        {ctrl, VACATION_DAY, UNKNOWN},
        {ctrl, UNKNOWN, UNKNOWN},
        {alt, VACATION_DAY, WILL_BE_IN_OFFICE},
        {alt, WILL_BE_IN_OFFICE, UNKNOWN},
        {shift, UNKNOWN, VACATION_DAY},
        {shift, VACATION_DAY, UNKNOWN},
        {ctrl | shift, IN_OFFICE, UNKNOWN},
        {ctrl | alt, IN_OFFICE, UNKNOWN},
        {alt | shift, IN_OFFICE, WILL_BE_IN_OFFICE},
    };
    int changes = 0;
    const auto follower = november->days.addNotifier([&] { ++changes; });
    view.focusDay(friday);
    for (const bool byKey : {false, true}) {
        for (const auto& [held, before, after] : gestures) {
            SCOPED_TRACE(testing::Message()
                         << (byKey ? "Space with " : "click with ") << held << " on " << int(before));
            mark(*november, friday, before);
            changes = 0;
            byKey ? press(view, Qt::Key_Space, held) : click(dayButton(view, friday), held);
            EXPECT_EQ(state(friday), after);
            EXPECT_EQ(changes, before == after ? 0 : 1);
        }
    }
}

TEST_F(DayClickTest, aDayHasTheColourOfItsState)
{
    for (const ColorScheme scheme : {ColorScheme::Light, ColorScheme::Dark}) {
        applyScheme(scheme);
        const Theme& theme = themeFor(scheme);
        for (const int day : {friday, saturday}) {
            const QColor first = day == friday ? theme.unknown : theme.nonWorkday;
            for (const QColor& colour :
                 {first, theme.inOffice, theme.outOfOffice, theme.vacationDay, theme.willBeInOffice, first}) {
                EXPECT_EQ(painted(dayButton(view, day), 2), colour) << day;
                click(dayButton(view, day));
            }
            mark(*november, day, UNKNOWN); // by something else than this view
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
        {"right button", Qt::RightButton, {face, face, face}, UNKNOWN},
        {"middle button", Qt::MiddleButton, {face, face, face}, UNKNOWN},
    };
    for (const auto& [name, mouseButton, way, after] : rows) {
        mark(*november, friday, UNKNOWN);
        QTest::mousePress(view.windowHandle(), mouseButton, {}, way[0]);
        moveTo(view, way[1]);
        QTest::mouseRelease(view.windowHandle(), mouseButton, {}, way[2]);
        if (QWidget* menu = QApplication::activePopupWidget())
            menu->close();
        EXPECT_EQ(state(friday), after) << name;
        EXPECT_EQ(state(saturday), UNKNOWN) << name;
    }
}

TEST_F(DayClickTest, aClickIsOnDiskBeforeTheEventLoopTurns)
{
    for (const auto held : {Qt::NoModifier, ctrl, alt, shift}) {
        QTest::mouseClick(&dayButton(view, friday), Qt::LeftButton, held);
        EXPECT_EQ(stateOnDisk(friday), state(friday)) << held;
    }
    EXPECT_EQ(stateOnDisk(friday), VACATION_DAY);
    // A click also puts right what is not a matter of the state.
    QList<Day> days = november->days;
    days[*november->indexOf(friday)].isWorkday = false;
    november->days = days;
    click(dayButton(view, friday), ctrl);
    EXPECT_TRUE(november->days.value().at(*november->indexOf(friday)).isWorkday);
}
