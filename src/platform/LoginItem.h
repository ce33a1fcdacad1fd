// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>

#include <functional>

class QObject;

/// Makes the session start this program when the person logs in.
class LoginItem {
public:
    LoginItem() = default;
    virtual ~LoginItem() = default;
    Q_DISABLE_COPY_MOVE(LoginItem)

    /// The current state; other programs can change it at any time.
    [[nodiscard]] virtual bool isEnabled() const = 0;
    /// Calls this after other programs may have changed the state, as long as the owner exists.
    virtual void watch(QObject& owner, const std::function<void()>& changed) = 0;
    /// Both throw a PlatformError if the system refuses.
    virtual void registerItem() = 0;
    virtual void unregisterItem() = 0;
};
