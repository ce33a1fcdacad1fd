# SPDX-License-Identifier: GPL-3.0-or-later
find_package(Qt6 6.4 REQUIRED COMPONENTS Test)

pellory_test(views
    SOURCES
        support/WindowTestMain.cpp
        views/CalendarViewTest.cpp
        views/DayClickTest.cpp
        views/HoverTest.cpp
        views/MainWindowTest.cpp
        views/PagesTest.cpp
        views/ProgressBarTest.cpp
        views/ProgressWidgetViewTest.cpp
        views/ThemeTest.cpp
    LINKS Pellory::views SQLiteCpp Qt6::Test
)
pellory_test(app
    SOURCES app/PelloryAppTest.cpp
    LINKS Pellory::app
)
pellory_test(platform
    SOURCES platform/PortalAppearanceTest.cpp platform/SystemClockTest.cpp
    LINKS Pellory::platform_linux Qt6::DBus Qt6::Test
)
pellory_test(integration
    SOURCES integration/ProgramTest.cpp
    LINKS Pellory::store Qt6::Test
)
add_dependencies(integration_test pellory)
target_compile_definitions(integration_test PRIVATE PELLORY_PROGRAM="$<TARGET_FILE:pellory>")
