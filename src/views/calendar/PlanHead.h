// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class PlanGrid;

/// The heads of the columns of a PlanGrid. It stays in sight while the weeks below it are scrolled, and is as wide as
/// they are. Screen readers do not need it: each day says its weekday.
class PlanHead : public QWidget {
    Q_OBJECT

public:
    explicit PlanHead(const PlanGrid& grid, QWidget* parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    const PlanGrid& m_grid;
};
