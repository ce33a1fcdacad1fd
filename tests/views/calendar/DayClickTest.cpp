// SPDX-License-Identifier: GPL-3.0-or-later
#include "CalendarViewTest.h"

using enum DayState;
using enum Qt::KeyboardModifier;

class DayClickTest : public CalendarViewTest {};

TEST_F(DayClickTest, aClickOrAKeyRunsTheOneActionOfTheHeldKeysAndIsOnDiskAtOnce)
{
    const std::tuple<Qt::KeyboardModifiers, DayState, DayState> gestures[]{
        {NoModifier, UNKNOWN, IN_OFFICE},
        {ControlModifier, UNKNOWN, UNKNOWN},
        {AltModifier, WILL_BE_IN_OFFICE, UNKNOWN},
        {ShiftModifier, UNKNOWN, VACATION_DAY},
        {ShiftModifier, VACATION_DAY, UNKNOWN},
        {ControlModifier | AltModifier | ShiftModifier, VACATION_DAY, UNKNOWN},
        {AltModifier | ShiftModifier, VACATION_DAY, WILL_BE_IN_OFFICE},
    };
    auto& button = dayButton(view, friday);
    button.setFocus(Qt::TabFocusReason);
    for (const Qt::Key key : {Qt::Key(), Qt::Key_Space}) {
        for (const auto& [held, before, after] : gestures) {
            SCOPED_TRACE(testing::Message() << key << " with " << held << " on " << int(before));
            QList<Day> days = november->days;
            days[friday - 1] = {friday, before, false}; // which a click puts right
            november->days = days;
            // To the button itself, because an event through the window lets the event loop turn.
            key ? QTest::keyClick(&button, key, held) : QTest::mouseClick(&button, Qt::LeftButton, held);
            EXPECT_EQ(dayOnDisk(friday), (Day{friday, after, true}));
        }
    }
}

TEST_F(DayClickTest, aDayHasTheColourOfItsStateAndTodayARing)
{
    for (const ColorScheme scheme : {ColorScheme::Light, ColorScheme::Dark}) {
        applyScheme(scheme);
        const Look look{scheme};
        const Theme& theme = themeFor(look);
        for (const int day : {friday, saturday}) {
            const QColor unknown = day == friday ? theme.unknown : theme.nonWorkday;
            for (const QColor& colour :
                 {unknown, theme.inOffice, theme.outOfOffice, theme.vacationDay, theme.willBeInOffice, unknown}) {
                auto& button = dayButton(view, day);
                EXPECT_EQ(painted(button, 2), colour) << day;
                EXPECT_EQ(hasMark(button.grab(button.markArea()).toImage()), colour != unknown) << day;
                click(button);
            }
            mark(*november, day, UNKNOWN); // from outside the view
            EXPECT_EQ(painted(dayButton(view, day), -3) != theme.page, day == friday);
        }
    }
    QTest::mouseDClick(view.windowHandle(), Qt::LeftButton, {}, inWindow(dayButton(view, friday)));
    EXPECT_EQ(dayOnDisk(friday).state, OUT_OF_OFFICE);
}

TEST_F(DayClickTest, onlyAPressThatStaysOnTheDayIsAClick)
{
    const QPoint face = inWindow(dayButton(view, friday)), neighbour = inWindow(dayButton(view, saturday));
    const QRect cell = dayButton(view, friday).geometry();
    const QPoint corner = cell.topLeft();
    EXPECT_EQ(dayButton(view, saturday).pos(), cell.topRight() + QPoint(1, 0)); // no gap
    EXPECT_EQ(dayButton(view, 27).pos(), cell.bottomLeft() + QPoint(0, 1));
    const std::tuple<Qt::MouseButton, std::array<QPoint, 3>, DayState> rows[]{
        {Qt::LeftButton, {face, face + QPoint(9, 5), face + QPoint(9, 5)}, IN_OFFICE},
        {Qt::LeftButton, {face, neighbour, face}, UNKNOWN},
        {Qt::LeftButton, {corner, face, corner}, IN_OFFICE},
        {Qt::MiddleButton, {face, face, face}, UNKNOWN},
    };
    for (const auto& [button, way, after] : rows) {
        mark(*november, friday, UNKNOWN);
        QTest::mousePress(view.windowHandle(), button, {}, way[0]);
        moveTo(view, way[1]);
        QTest::mouseRelease(view.windowHandle(), button, {}, way[2]);
        EXPECT_EQ(dayOnDisk(friday).state, after) << way[0].x() << ' ' << way[1].x() << ' ' << way[2].x();
        EXPECT_EQ(dayOnDisk(saturday).state, UNKNOWN);
    }
}
