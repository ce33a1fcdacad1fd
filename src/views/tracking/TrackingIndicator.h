// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "IconButton.h"

class TrackingStatus;
struct ViewParts;

/// Shows whether days are being marked automatically, and whether they could be. A click tells more.
class TrackingIndicator : public IconButton {
    Q_OBJECT

public:
    TrackingIndicator(const ViewParts& parts, TrackingStatus& status, QWidget* parent = nullptr);

protected:
    [[nodiscard]] QColor color() const override;

private:
    void refresh();

    TrackingStatus& m_status;
};
