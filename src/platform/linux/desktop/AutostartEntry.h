// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "LoginItem.h"

#include <QStringList>

/// The entry of this program in the folder that the desktop goes through at login (XDG autostart).
class AutostartEntry : public LoginItem {
public:
    /// `configFolder` is $XDG_CONFIG_HOME. `command` is what the desktop starts: the absolute path of an executable or
    /// a name on its PATH, and arguments.
    AutostartEntry(const QString& configFolder, const QStringList& command)
        : m_folder(configFolder + QStringLiteral("/autostart"))
        , m_command(command)
    {
    }

    /// That of the running program. The desktop sees neither the folders nor the executable of a Flatpak, and a program
    /// runs in one where the file `sandboxMark` exists.
    [[nodiscard]] static AutostartEntry ofThisProgram(const QString& sandboxMark = QStringLiteral("/.flatpak-info"));

    /// False as well where a desktop has switched the entry off, which leaves the file in place.
    [[nodiscard]] bool isEnabled() const override;
    void registerItem() override;
    void unregisterItem() override;

private:
    QString m_folder;
    QString m_path = m_folder + QStringLiteral("/io.github.pellory.Pellory.desktop");
    QStringList m_command;
};
