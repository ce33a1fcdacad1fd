// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "FocusVisible.h"

#include <QWidget>

/// A group of widgets that only show something. Tab reaches the group, so that a screen reader can say it as a whole.
class SpokenGroup : public QWidget {
    Q_OBJECT

public:
    /// Room for the focus ring, which the layout leaves around the contents.
    static constexpr int ringRoom = 5;

    /// The focus ring stays this far from the sides.
    explicit SpokenGroup(int ringInset = 0, QWidget* parent = nullptr);

    /// Sets what is said: the title, then the texts.
    void setSpokenText(const QString& title, const QStringList& texts);

protected:
    void focusInEvent(QFocusEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    int m_ringInset;
    FocusVisible m_focusVisible;
};
