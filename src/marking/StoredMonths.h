// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Period.h"

#include <QDate>
#include <QList>

#include <memory>
#include <stdexcept>

class ModelContext;
class Month;

/// The store holds a month more than once.
class DuplicateMonthError : public std::runtime_error {
public:
    DuplicateMonthError()
        : std::runtime_error("a month is stored more than once")
    {
    }
};

/// The record of the month of a date, created and inserted if the store has none. Throws a DuplicateMonthError, or a
/// StoreError if the store cannot be read.
[[nodiscard]] std::shared_ptr<Month> findOrCreateMonth(ModelContext& context, QDate date);

/// The first record of the month of a date, null if the store has none. Throws a StoreError if the store cannot be
/// read.
[[nodiscard]] std::shared_ptr<Month> storedMonth(ModelContext& context, QDate date);

/// The three months of a quarter in order, the first record of each. Those that the store does not hold yet are created
/// and inserted. Throws a StoreError, and creates nothing, if the store cannot be read.
[[nodiscard]] QList<std::shared_ptr<Month>> quarterMonths(ModelContext& context, const YearQuarter& quarter);

/// The twelve months of a year in order, the first record of each. For those that the store does not hold there are
/// months of unknown days, which are not inserted. Throws a StoreError if the store cannot be read.
[[nodiscard]] QList<std::shared_ptr<Month>> yearMonths(ModelContext& context, int year);
