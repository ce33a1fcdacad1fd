// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "LoginItem.h"

#include <QObject>

/// The "launch at login" setting as a switch shows and changes it.
class LaunchAtLogin : public QObject {
    Q_OBJECT

public:
    explicit LaunchAtLogin(LoginItem& item)
        : m_item(item)
    {
    }

    [[nodiscard]] bool isEnabled() const { return m_item.isEnabled(); }
    /// A failure is only logged; isEnabled() returns what the system has made of it.
    void setEnabled(bool isEnabled);
    /// Calls this after the state may have changed, as long as the owner exists.
    void watch(QObject& owner, const std::function<void()>& changed) { m_item.watch(owner, changed); }

Q_SIGNALS:
    void willChange();

private:
    LoginItem& m_item;
};
