// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "CountingCard.h"

class CountingRecords;

/// Whether vacation days are left out of the workdays.
class VacationCard : public CountingCard {
    Q_OBJECT

public:
    explicit VacationCard(CountingRecords& counting, QWidget* parent = nullptr);
};
