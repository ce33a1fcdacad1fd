// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLineEdit>

/// A field for a line of text with a rounded border.
class TextField : public QLineEdit {
    Q_OBJECT

public:
    /// The prompt is shown while the field is empty, and is the field's name to assistive technology.
    explicit TextField(const QString& prompt, QWidget* parent = nullptr);

protected:
    /// Return belongs to the field, and not to the default button of its window.
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
};
