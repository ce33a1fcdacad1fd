// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Period.h"

#include <QList>

#include <memory>

class ModelContext;
class Month;

/// The three months of a quarter in order. Those that the store does not hold yet are created and inserted. Throws a
/// StoreError, and creates nothing, when the store cannot be read.
[[nodiscard]] QList<std::shared_ptr<Month>> quarterMonths(ModelContext& context, const YearQuarter& quarter);
