// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Alerts.h"

#include <QCoreApplication>

/// Messages and questions in boxes with the program's look and icon.
class MessageBoxAlerts : public Alerts {
    Q_DECLARE_TR_FUNCTIONS(MessageBoxAlerts)

public:
    [[nodiscard]] std::shared_ptr<void> showNotice(const QString& message, const QString& informativeText) override;
    void showCritical(const QString& message, const QString& informativeText) override;
    [[nodiscard]] bool confirmWarning(const QString& message, const QString& informativeText,
                                      const QString& firstButton, const QString& secondButton) override;
};
