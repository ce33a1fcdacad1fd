// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "TextField.h"

#include <optional>

/// A narrow field for a number, written as the person's language does.
class NumberField : public TextField {
    Q_OBJECT

public:
    explicit NumberField(const QString& accessibleName, QWidget* parent = nullptr);

    /// Nothing if the text is no number. A decimal point is accepted in every language, because goals are written with
    /// one.
    [[nodiscard]] std::optional<double> number() const;
    void setNumber(double number);

    /// The shortest text that is read as this number.
    [[nodiscard]] static QString textOf(double number);
};
