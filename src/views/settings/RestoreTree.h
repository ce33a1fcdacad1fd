// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTreeView>

class DayDifferenceDelegate;

/// The tree of a RestoreModel. However many days it has, only those in sight are laid out and drawn.
class RestoreTree : public QTreeView {
    Q_OBJECT

public:
    explicit RestoreTree(QWidget* parent = nullptr);

    /// Shows the model with all months open.
    void setModel(QAbstractItemModel* model) override;
    [[nodiscard]] QSize sizeHint() const override;

protected:
    void focusInEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    DayDifferenceDelegate* m_delegate;
};
