// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "LoginItem.h"

#include <QString>

/// The entry of this program in the folder that the desktop goes through at login (XDG autostart).
class AutostartEntry : public LoginItem {
public:
    /// `configFolder` is $XDG_CONFIG_HOME, `program` the absolute path of the executable.
    AutostartEntry(const QString& configFolder, const QString& program)
        : m_folder(configFolder + QStringLiteral("/autostart"))
        , m_program(program)
    {
    }

    /// False as well where a desktop has switched the entry off, which leaves the file in place.
    [[nodiscard]] bool isEnabled() const override;
    void registerItem() override;
    void unregisterItem() override;

private:
    QString m_folder;
    QString m_path = m_folder + QStringLiteral("/io.github.pellory.Pellory.desktop");
    QString m_program;
};
