// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>

class QString;

/// Shows modal messages and questions. Tests answer in the person's place.
class Alerts {
public:
    Alerts() = default;
    Alerts(const Alerts&) = delete;
    Alerts& operator=(const Alerts&) = delete;
    virtual ~Alerts() = default;

    /// Shows a message that needs no answer, for as long as what it returns exists and the event loop turns.
    [[nodiscard]] virtual std::shared_ptr<void> showNotice(const QString& message, const QString& informativeText) = 0;
    /// Shows a message about a failure and returns when it is dismissed.
    virtual void showCritical(const QString& message, const QString& informativeText) = 0;
    /// Asks a question with two answers and returns whether the first button was pressed.
    [[nodiscard]] virtual bool confirmWarning(const QString& message, const QString& informativeText,
                                              const QString& firstButton, const QString& secondButton) = 0;
};
