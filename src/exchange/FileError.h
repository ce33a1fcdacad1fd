// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCoreApplication>

#include <stdexcept>

/// Why a file cannot be read or written, and what to do, in words for the person.
class FileError : public std::runtime_error {
    Q_DECLARE_TR_FUNCTIONS(FileError)

public:
    explicit FileError(const QString& description)
        : std::runtime_error(description.toStdString())
    {
    }

    [[nodiscard]] QString description() const { return QString::fromUtf8(what()); }
};
