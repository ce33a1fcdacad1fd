// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "LoginItem.h"

#include <QStringList>

/// This program's entry in the folder of programs that the desktop starts at login (XDG autostart).
class AutostartEntry : public LoginItem {
public:
    /// `configFolder` is $XDG_CONFIG_HOME. `command` is an absolute path or a name on the desktop's PATH, and
    /// arguments.
    AutostartEntry(const QString& configFolder, const QStringList& command)
        : m_folder(configFolder + QStringLiteral("/autostart"))
        , m_command(command)
    {
    }

    /// The entry of the running program. In a Flatpak, where the file `sandboxMark` exists, the desktop sees neither
    /// the program's folders nor its executable.
    [[nodiscard]] static AutostartEntry ofThisProgram(const QString& sandboxMark = QStringLiteral("/.flatpak-info"));

    /// Also false if a desktop has disabled the entry, which leaves the file in place.
    [[nodiscard]] bool isEnabled() const override;
    void watch(QObject& owner, const std::function<void()>& changed) override;
    void registerItem() override;
    void unregisterItem() override;

private:
    QString m_folder;
    QString m_path = m_folder + QStringLiteral("/io.github.pellory.Pellory.desktop");
    QStringList m_command;
};
