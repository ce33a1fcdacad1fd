// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCoreApplication>
#include <QDate>

#include <memory>

class Clock;
class CountingRecords;
class DayMarker;
class ModelContainer;
class Month;
class Notifier;
enum class DayState;

/// Marks days automatically, by what a detection has found. The person's own marks win: only unknown and planned days
/// change.
class InOfficeModelUpdater {
    Q_DECLARE_TR_FUNCTIONS(InOfficeModelUpdater)

public:
    InOfficeModelUpdater(ModelContainer& container, DayMarker& marker, const CountingRecords& counting, Clock& clock,
                         Notifier& notifier)
        : m_container(container)
        , m_marker(marker)
        , m_counting(counting)
        , m_clock(clock)
        , m_notifier(notifier)
    {
    }

    /// Marks today as in the office if `inOfficeNow`, because of `network`, and the last workday before today as out of
    /// office if `markPreviousWorkday`. Returns whether today was marked. Throws an InOfficeDetectionError if a month
    /// is stored more than once, and a StoreError if the store cannot be read; marks made before that stay.
    bool update(bool notificationsEnabled, bool inOfficeNow, bool markPreviousWorkday, const QString& network = {});

private:
    void markAsOut(QDate date, bool notificationsEnabled);
    [[nodiscard]] std::shared_ptr<Month> monthOf(QDate date);
    /// Returns the group of the change, or 0.
    qint64 mark(Month& month, QDate date, DayState state, const QString& network = {});

    ModelContainer& m_container;
    DayMarker& m_marker;
    const CountingRecords& m_counting;
    Clock& m_clock;
    Notifier& m_notifier;
};
