// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QProperty>
#include <QSettings>

/// What the person has switched on in the calendar views. Each field reads its stored key at the start and stores every
/// change at once.
class ViewSettings : public QObject {
public:
    explicit ViewSettings(QSettings& settings);

    QProperty<bool> showProgressBars{true};
    QProperty<bool> showQuarterStats{true};
    QProperty<bool> showMonthStats{true};
    QProperty<bool> showWillBeInOfficeStats{true};
    QProperty<bool> showStatusLabelOnHover{true};
    /// 1 is the month, 2 the quarter.
    QProperty<int> selectedTab{1};

    /// Where a window stood and how large it was, as the toolkit writes it down; empty where that is not known.
    [[nodiscard]] QByteArray geometry(const QString& key) const { return m_settings.value(key).toByteArray(); }
    void setGeometry(const QString& key, const QByteArray& geometry) { m_settings.setValue(key, geometry); }

private:
    template <class Value> void persist(QProperty<Value>& field, const QString& key);

    QSettings& m_settings;
};
