// SPDX-License-Identifier: GPL-3.0-or-later
#include "SystemClock.h"
#include "Eventually.h"
#include "Testing.h"

#include <QSignalSpy>
#include <QTemporaryDir>

#include <filesystem>

TEST(SystemClockTest, aNewTimeZoneMayBeginADay)
{
    const QTemporaryDir folder;
    const std::filesystem::path link = folder.filePath(u"localtime"_s).toStdString(), next = link.string() + ".new";
    std::filesystem::create_symlink("UTC", link);
    SystemClock clock(link.c_str());
    QSignalSpy dayChanged(&clock, &Clock::dayChanged);
    for (const int count : {1, 2}) {
        std::filesystem::create_symlink("Europe/Berlin", next);
        std::filesystem::rename(next, link);
        EXPECT_TRUE(eventually([&, wanted = count] { return dayChanged.size() == wanted; }));
    }
}
