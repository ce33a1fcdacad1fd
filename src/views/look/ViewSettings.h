// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QProperty>
#include <QSettings>

/// The stored view settings. Each field is read from its key at construction, and every change is stored at once.
class ViewSettings : public QObject {
public:
    explicit ViewSettings(QSettings& settings);

    QProperty<bool> showProgressBars{true};
    QProperty<bool> showQuarterStats{true};
    QProperty<bool> showMonthStats{true};
    QProperty<bool> showWillBeInOfficeStats{true};
    QProperty<bool> showStatusLabelOnHover{true};
    QProperty<bool> showUnmarkedWorkdays{true};
    QProperty<bool> showWeekNumbers{false};
    /// The day on which rows of days begin, as Qt::DayOfWeek; 0 as the locale has it.
    QProperty<int> firstDayOfWeek{Qt::Sunday};
    /// 1 is "Month", 2 is "Quarter", 3 is "Year".
    QProperty<int> selectedTab{1};
    /// The folder of the last file that was saved or imported; empty before the first.
    QProperty<QString> lastFolder;

    /// The first day of a week that `firstDayOfWeek` stands for.
    [[nodiscard]] Qt::DayOfWeek weekStart() const;

    /// Where a file dialog opens: in the last folder, or else in the documents.
    [[nodiscard]] QString folderForFiles() const;

    /// What QWidget::saveGeometry() returned for a window; empty if nothing is stored.
    [[nodiscard]] QByteArray geometry(const QString& key) const { return m_settings.value(key).toByteArray(); }
    void setGeometry(const QString& key, const QByteArray& geometry) { m_settings.setValue(key, geometry); }

private:
    template <class Value> void persist(QProperty<Value>& field, const QString& key);

    QSettings& m_settings;
};
