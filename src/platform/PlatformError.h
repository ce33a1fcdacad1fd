// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <stdexcept>

/// A refusal or failure of a system service, in its own words.
class PlatformError : public std::runtime_error {
public:
    explicit PlatformError(const QString& description)
        : std::runtime_error(description.toStdString())
    {
    }

    [[nodiscard]] QString description() const { return QString::fromUtf8(what()); }
};
