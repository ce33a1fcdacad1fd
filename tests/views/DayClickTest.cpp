// SPDX-License-Identifier: GPL-3.0-or-later
#include "CalendarViewTest.h"

#include <csignal>

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
        {alt, UNKNOWN, WILL_BE_IN_OFFICE},
        {alt, VACATION_DAY, WILL_BE_IN_OFFICE},
        {alt, WILL_BE_IN_OFFICE, UNKNOWN},
        {shift, UNKNOWN, VACATION_DAY},
        {shift, VACATION_DAY, UNKNOWN},
        {shift, WILL_BE_IN_OFFICE, VACATION_DAY},
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

TEST_F(DayClickTest, clicksPassThroughTheColoursOfTheStates)
{
    const std::tuple<ColorScheme, int, QStringList> rows[]{
        {ColorScheme::Light, friday, {u"#1f6feb"_s, u"#1a7f37"_s, u"#d1242f"_s, u"#8250df"_s, u"#f5c518"_s}},
        {ColorScheme::Light, saturday, {u"#b9bcc2"_s, u"#1a7f37"_s, u"#d1242f"_s, u"#8250df"_s, u"#f5c518"_s}},
        {ColorScheme::Dark, friday, {u"#2f7af0"_s, u"#238a43"_s, u"#dc3d43"_s, u"#8e5ce6"_s, u"#f2c94c"_s}},
        {ColorScheme::Dark, saturday, {u"#5b5e66"_s, u"#238a43"_s, u"#dc3d43"_s, u"#8e5ce6"_s, u"#f2c94c"_s}},
    };
    for (const auto& [scheme, day, colours] : rows) {
        wear(scheme);
        for (const QString& colour : colours) {
            EXPECT_EQ(painted(dayButton(view, day), 2).name(), colour);
            click(dayButton(view, day));
        }
        EXPECT_EQ(painted(dayButton(view, day), 2).name(), colours.first());
    }
    QTest::mouseDClick(view.windowHandle(), Qt::LeftButton, {}, inWindow(dayButton(view, friday)));
    EXPECT_EQ(state(friday), OUT_OF_OFFICE);
    mark(*november, saturday, VACATION_DAY); // by something else than this view
    EXPECT_EQ(painted(dayButton(view, saturday), 2).name(), u"#8e5ce6"_s);
}

TEST_F(DayClickTest, onlyAPressThatStaysOnTheFaceIsAClick)
{
    const QPoint face = inWindow(dayButton(view, friday));
    const QPoint margin = dayButton(view, friday).mapTo(&view, QPoint(1, 1));
    const QPoint neighbour = inWindow(dayButton(view, saturday));
    const std::tuple<const char*, Qt::MouseButton, std::array<QPoint, 3>, DayState> rows[]{
        {"stays", Qt::LeftButton, {face, face + QPoint(9, 5), face + QPoint(9, 5)}, IN_OFFICE},
        {"leaves", Qt::LeftButton, {face, neighbour, neighbour}, UNKNOWN},
        {"leaves and comes back", Qt::LeftButton, {face, neighbour, face}, UNKNOWN},
        {"ends in the gap", Qt::LeftButton, {face, face, margin}, UNKNOWN},
        {"begins in the gap", Qt::LeftButton, {margin, face, face}, UNKNOWN},
        {"right button", Qt::RightButton, {face, face, face}, UNKNOWN},
        {"middle button", Qt::MiddleButton, {face, face, face}, UNKNOWN},
    };
    for (const auto& [name, mouseButton, way, after] : rows) {
        SCOPED_TRACE(name);
        mark(*november, friday, UNKNOWN);
        QTest::mousePress(view.windowHandle(), mouseButton, {}, way[0]);
        moveTo(view, way[1]);
        QTest::mouseRelease(view.windowHandle(), mouseButton, {}, way[2]);
        if (QWidget* menu = QApplication::activePopupWidget())
            menu->close();
        EXPECT_EQ(state(friday), after);
        EXPECT_EQ(state(saturday), UNKNOWN);
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
    days[*november->indexOf(friday)] = {.id = friday, .state = UNKNOWN, .isWorkday = false};
    november->days = days;
    click(dayButton(view, friday), ctrl);
    EXPECT_TRUE(november->days.value().at(*november->indexOf(friday)).isWorkday);
}

TEST_F(DayClickTest, aClickOutlivesTheProgramThatIsKilledRightAfterIt)
{
    for (int day = 1; day <= 10; ++day) {
        const auto clickAndDie = [&] {
            ModelContainer own({.name = {}, .path = path});
            const ViewParts ownParts{own.mainContext(), *settings,       viewSettings, clock,
                                     wifiClient,        locationManager, check,        launchAtLogin};
            CalendarView ownView(ownParts);
            ownView.setMonth(own.mainContext().fetchMonths(2026, 11).at(0));
            ownView.show();
            QTest::mouseClick(&dayButton(ownView, day), Qt::LeftButton, day % 2 == 0 ? alt : shift);
            std::raise(SIGKILL);
        };
        ASSERT_EXIT(clickAndDie(), testing::KilledBySignal(SIGKILL), "");
        for (int earlier = 1; earlier <= day; ++earlier)
            EXPECT_EQ(stateOnDisk(earlier), earlier % 2 == 0 ? WILL_BE_IN_OFFICE : VACATION_DAY);
    }
}
