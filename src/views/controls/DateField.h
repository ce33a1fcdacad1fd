// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "TextField.h"

#include <QDate>

#include <optional>

/// A field for a date in the format of the locale, with the year in full. Dates with a year of two digits, without
/// leading zeros, or as "2026-11-22" are accepted too; only years from 2000 to 2099.
class DateField : public TextField {
    Q_OBJECT

public:
    /// The name is the accessible name.
    explicit DateField(const QString& name, QWidget* parent = nullptr);

    /// What is typed; nothing if that is no date.
    [[nodiscard]] std::optional<QDate> date() const;
    void setDate(QDate date);

    /// What to say while date() returns nothing.
    [[nodiscard]] QString refusal() const;
};
