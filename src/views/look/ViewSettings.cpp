// SPDX-License-Identifier: GPL-3.0-or-later
#include "ViewSettings.h"

#include "Follow.h"

#include <QDir>
#include <QLocale>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

ViewSettings::ViewSettings(QSettings& settings)
    : m_settings(settings)
{
    persist(showProgressBars, u"calendarViewShowProgressBars"_s);
    persist(showQuarterStats, u"calendarViewShowQuarterStats"_s);
    persist(showMonthStats, u"calendarViewShowMonthStats"_s);
    persist(showWillBeInOfficeStats, u"calendarViewShowWillBeInOfficeStats"_s);
    persist(showStatusLabelOnHover, u"calendarViewShowStatusLabelOnHover"_s);
    persist(showUnmarkedWorkdays, u"calendarViewShowUnmarkedWorkdays"_s);
    persist(showWeekNumbers, u"calendarViewShowWeekNumbers"_s);
    persist(firstDayOfWeek, u"calendarViewFirstDayOfWeek"_s);
    persist(selectedTab, u"contentViewSelectedTab"_s);
    persist(lastFolder, u"recordViewFolder"_s);
}

Qt::DayOfWeek ViewSettings::weekStart() const
{
    const int day = firstDayOfWeek;
    return day >= Qt::Monday && day <= Qt::Sunday ? static_cast<Qt::DayOfWeek>(day) : QLocale().firstDayOfWeek();
}

QString ViewSettings::folderForFiles() const
{
    for (const QString& folder :
         {lastFolder.value(), QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation)}) {
        if (!folder.isEmpty() && QFileInfo(folder).isDir())
            return folder;
    }
    return QDir::homePath();
}

template <class Value> void ViewSettings::persist(QProperty<Value>& field, const QString& key)
{
    field = m_settings.value(key, field.value()).template value<Value>();
    onChange(field, this, [this, &field, key] { m_settings.setValue(key, field.value()); });
}
