// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCoreApplication>

#include <stdexcept>

/// Why the store cannot be opened or read, in words for the person.
class StoreError : public std::runtime_error {
    Q_DECLARE_TR_FUNCTIONS(StoreError)

public:
    explicit StoreError(const QString& description)
        : std::runtime_error(description.toStdString())
    {
    }

    [[nodiscard]] QString description() const { return QString::fromUtf8(what()); }
};
