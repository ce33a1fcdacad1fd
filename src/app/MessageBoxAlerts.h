// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Alerts.h"

class MessageBoxAlerts : public Alerts {
public:
    [[nodiscard]] std::shared_ptr<void> showNotice(const QString& message, const QString& informativeText) override;
    void showCritical(const QString& message, const QString& informativeText) override;
    [[nodiscard]] bool confirmWarning(const QString& message, const QString& informativeText,
                                      const QString& firstButton, const QString& secondButton) override;
};
