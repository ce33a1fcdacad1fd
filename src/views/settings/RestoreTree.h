// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "PlainTree.h"

class DayDifferenceDelegate;

/// The tree of a RestoreModel.
class RestoreTree : public PlainTree {
    Q_OBJECT

public:
    explicit RestoreTree(QWidget* parent = nullptr);

    /// Shows the model with all months open.
    void setModel(QAbstractItemModel* model) override;
    [[nodiscard]] QSize sizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void fitDays();

    DayDifferenceDelegate* m_delegate;
};
