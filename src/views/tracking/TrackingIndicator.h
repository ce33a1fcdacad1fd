// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "IconButton.h"

class TrackingStatus;

/// Shows in the toolbar whether automatic tracking is on and can work.
class TrackingIndicator : public IconButton {
    Q_OBJECT

public:
    explicit TrackingIndicator(TrackingStatus& status, QWidget* parent = nullptr);

protected:
    [[nodiscard]] QColor color() const override;

private:
    void refresh();

    TrackingStatus& m_status;
};
