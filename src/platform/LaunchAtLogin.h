// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "LoginItem.h"

#include <QObject>

/// Whether the program is started at login, as the person is shown it and sets it.
class LaunchAtLogin : public QObject {
    Q_OBJECT

public:
    explicit LaunchAtLogin(LoginItem& item)
        : m_item(item)
    {
    }

    [[nodiscard]] bool isEnabled() const { return m_item.isEnabled(); }
    /// A failure is only logged: isEnabled() tells what has become of it.
    void setEnabled(bool isEnabled);

Q_SIGNALS:
    void willChange();

private:
    LoginItem& m_item;
};
