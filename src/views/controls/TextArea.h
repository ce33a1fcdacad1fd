// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTextEdit>

/// A field for several lines of plain text, with a rounded border. Unlike QPlainTextEdit it aligns each paragraph by
/// its direction of writing.
class TextArea : public QTextEdit {
    Q_OBJECT

public:
    /// It is so many lines high. Longer texts scroll.
    explicit TextArea(int lines, QWidget* parent = nullptr);

Q_SIGNALS:
    /// The focus has left the field.
    void left();

protected:
    bool event(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
};
