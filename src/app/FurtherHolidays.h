// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

class Clock;
class CountingRecords;

/// Adds the holidays of the region that a person has chosen as years go by, so that those of this year and the next two
/// are there. Each year is added once: what the person takes out stays out.
class FurtherHolidays : public QObject {
    Q_OBJECT

public:
    FurtherHolidays(CountingRecords& counting, const Clock& clock);

    /// Adds what is missing, now and whenever a day begins.
    void start();

private:
    void addMissing();

    CountingRecords& m_counting;
    const Clock& m_clock;
};
