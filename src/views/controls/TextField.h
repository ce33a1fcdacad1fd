// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLineEdit>

/// A line edit with a rounded border.
class TextField : public QLineEdit {
    Q_OBJECT

public:
    /// The prompt is the placeholder text and the accessible name.
    explicit TextField(const QString& prompt, QWidget* parent = nullptr);

protected:
    /// Return is not passed on to the default button of the window.
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
};
