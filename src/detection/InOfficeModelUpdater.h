// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCoreApplication>
#include <QDate>

#include <memory>

class Clock;
class ModelContainer;
class Month;
class Notifier;
enum class DayState;

/// Writes what a detection has found into the records. No other part marks days by itself, and a state that the person
/// has chosen is never touched: only unknown and planned days are.
class InOfficeModelUpdater {
    Q_DECLARE_TR_FUNCTIONS(InOfficeModelUpdater)

public:
    InOfficeModelUpdater(ModelContainer& container, Clock& clock, Notifier& notifier)
        : m_container(container)
        , m_clock(clock)
        , m_notifier(notifier)
    {
    }

    /// Marks today as in the office when that is where the person is and, if asked, the last workday before today as
    /// out of office. True when this call has marked today. Throws an InOfficeDetectionError where a month is stored
    /// twice, and a StoreError when the store cannot be read; what was marked before that stays marked.
    bool update(bool notificationsEnabled, bool inOfficeNow, bool markPreviousWorkday);

private:
    [[nodiscard]] std::shared_ptr<Month> monthOf(QDate date);
    bool mark(Month& month, QDate date, DayState state);

    ModelContainer& m_container;
    Clock& m_clock;
    Notifier& m_notifier;
};
