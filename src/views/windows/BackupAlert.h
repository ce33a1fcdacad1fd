// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "AlertCard.h"

class BackupService;

/// A card that is visible while no backup can be made, unless the person has closed it.
class BackupAlert : public AlertCard {
    Q_OBJECT

public:
    explicit BackupAlert(BackupService& backups, QWidget* parent = nullptr);

private:
    void refresh();

    BackupService& m_backups;
    bool m_isClosed = false;
};
