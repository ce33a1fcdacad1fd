// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "FocusVisible.h"

#include <QWidget>

/// A group of widgets that only show something. Tab reaches the group, so that a screen reader can say it as a whole.
class SpokenGroup : public QWidget {
    Q_OBJECT

public:
    explicit SpokenGroup(QWidget* parent = nullptr);

    /// Sets what is said: the title, then the texts.
    void setSpokenText(const QString& title, const QStringList& texts);

protected:
    void focusInEvent(QFocusEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    FocusVisible m_focusVisible;
};
