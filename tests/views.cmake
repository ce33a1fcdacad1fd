# SPDX-License-Identifier: GPL-3.0-or-later
pellory_test(views
    SOURCES
        support/FakeWiFiClient.h support/WindowTestMain.cpp views/calendar/CalendarViewTest.cpp
        views/calendar/DayClickTest.cpp views/calendar/DayDetailsTest.cpp views/calendar/DayHistoryTest.cpp
        views/calendar/DaySelectionTest.cpp views/calendar/HoverTest.cpp views/calendar/OpenDaysTest.cpp
        views/calendar/PlanTest.cpp views/calendar/RuleLinesTest.cpp views/help/LegendViewTest.cpp
        views/look/ThemeTest.cpp views/progress/ProgressBarTest.cpp views/progress/ProgressWidgetViewTest.cpp
        views/settings/CountingTest.cpp views/settings/DataSettingsTest.cpp views/settings/RulesTest.cpp
        views/settings/SettingsTest.cpp views/tracking/TrackingTest.cpp views/windows/AppWindowsTest.cpp
        views/windows/ContentViewTest.cpp views/windows/PagesTest.cpp views/windows/RecordViewTest.cpp
        views/windows/SaveAlertTest.cpp views/windows/UndoLineTest.cpp views/year/YearViewTest.cpp
    LINKS Pellory::windows SQLiteCpp Qt6::Test
    PRECOMPILES <QApplication> <QCoroTask> <QLabel> <QSignalSpy> <QTest>
)
pellory_test(life
    SOURCES life/MonthsOfRunningTest.cpp support/FakeWiFiClient.h support/WindowTestMain.cpp
    LINKS Pellory::windows Pellory::platform_linux Qt6::Test
)
pellory_test(app
    SOURCES support/FakeWiFiClient.h support/WindowTestMain.cpp
        app/BackgroundTest.cpp app/FurtherHolidaysTest.cpp app/MessageBoxAlertsTest.cpp app/PelloryAppTest.cpp
        app/TranslationsTest.cpp
    LINKS Pellory::app SQLiteCpp Qt6::Test
)
pellory_test(platform
    SOURCES platform/BackgroundLifeTest.cpp platform/DesktopServicesTest.cpp platform/NetworkManagerTest.cpp
        platform/PortalAppearanceTest.cpp platform/ProcessSetupTest.cpp platform/SystemClockTest.cpp
    LINKS Pellory::platform_linux Qt6::DBus Qt6::Test
    PRECOMPILES <QCoroTask> <QTest> <QtDBus>
)
target_compile_definitions(platform_test PRIVATE
    NETWORK_MANAGER_TEMPLATE="${CMAKE_CURRENT_SOURCE_DIR}/integration/network_manager.py")
foreach(case
        desktop_test.DesktopTest.test_controls_have_names_and_roles
        desktop_test.DesktopTest.test_does_the_same_for_scripts_with_a_window_and_without
        desktop_test.DesktopTest.test_goes_on_without_a_window_while_it_tracks
        desktop_test.DesktopTest.test_starts_at_login_without_a_window
        desktop_test.DesktopTest.test_tells_a_screen_reader_what_happens
        faults_test.FaultsTest.test_goes_on_while_nothing_answers_and_opens_nothing_to_the_internet
        faults_test.FaultsTest.test_marks_a_day_at_the_office_once
        faults_test.FaultsTest.test_says_that_there_is_no_radio
        faults_test.FaultsTest.test_starts_without_a_bus_and_after_every_end
        wayland_test.WaylandTest.test_opens_and_shows_its_windows_with_wayland)
    string(REGEX REPLACE ".*test_" "" name ${case})
    add_test(NAME integration.desktop.${name} WORKING_DIRECTORY "${CMAKE_CURRENT_SOURCE_DIR}/integration" COMMAND
        env PELLORY_PROGRAM=$<TARGET_FILE:pellory>
        PELLORY_INTERFACE=${PROJECT_SOURCE_DIR}/data/dbus-interfaces/io.github.pellory.Pellory1.xml /usr/bin/python3 -Bm unittest ${case})
    set_tests_properties(integration.desktop.${name} PROPERTIES SKIP_REGULAR_EXPRESSION "skipped=")
endforeach()
