// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "AppSettings.h"
#include "CalendarParts.h"
#include "CountingRecords.h"
#include "DayMarker.h"
#include "FixedClock.h"
#include "Marking.h"
#include "ModelContainer.h"
#include "ModelContext.h"
#include "StoredMonths.h"
#include "Testing.h"
#include "Theme.h"
#include "UndoHistory.h"
#include "ViewSettings.h"
#include "Widgets.h"

#include <QApplication>
#include <QTemporaryDir>

/// What the calendar works on: a real store with two goals, on the morning of Friday 20 November 2026.
class CalendarTest : public testing::Test {
protected:
    CalendarTest()
    {
        settings->daysPerWeekGoals = {Goal::create(u"2"_s, u"not fired"_s), Goal::create(u"4"_s, u"ideal"_s)};
        context.insert(settings);
    }
    ~CalendarTest() override { applyScheme(ColorScheme::Light); }

    /// The stored month; a new one if there is none.
    [[nodiscard]] std::shared_ptr<Month> month(int year, int number)
    {
        auto found = findOrCreateMonth(context, {year, number, 1});
        context.save();
        return found;
    }

    static void applyScheme(ColorScheme scheme)
    {
        QApplication::setPalette(paletteFor({scheme}));
        QApplication::processEvents();
    }

    /// Whether something is drawn on a ground.
    [[nodiscard]] static bool hasMark(const QImage& image)
    {
        QImage ground = image.copy();
        ground.fill(image.pixelColor(0, 0));
        return image != ground;
    }

    const QTemporaryDir folder{inMemory};
    const QString path = folder.filePath(u"Pellory.store"_s);
    ModelContainer container{{.name = {}, .path = path}};
    ModelContext& context = container.mainContext();
    const std::shared_ptr<AppSettings> settings = std::make_shared<AppSettings>();
    QSettings stored{folder.filePath(u"views.ini"_s), QSettings::IniFormat};
    ViewSettings viewSettings{stored};
    FixedClock clock;
    DayMarker marker{context, clock};
    CountingRecords counting{marker, *settings};
    const CalendarParts calendarParts{marker, counting, *settings, viewSettings, clock};
    UndoHistory history{marker};
};
