// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "MarkedText.h"

#include <QLabel>
#include <QTextLayout>

/// A label that has some words in bold, and always the height of the same number of lines. Text that needs more is
/// elided, and whole in the tooltip. To assistive technology it is a plain label.
class MarkedTextLabel : public QLabel {
    Q_OBJECT

public:
    explicit MarkedTextLabel(QWidget* parent = nullptr);

    void setMarkedText(const MarkedText& text);
    void setLineCount(int lines);
    /// Sets the colour of the words that are not bold.
    void setPlainRole(QPalette::ColorRole role);

    /// How many lines a text needs at this width.
    [[nodiscard]] int linesFor(const MarkedText& text, int width) const;
    [[nodiscard]] bool isElided() const { return m_isElided; }

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void layOut();
    /// Breaks a text into lines, or its first letters and an ellipsis, and returns the number of lines.
    int breakLines(QTextLayout& layout, const MarkedText& text, qsizetype letters, qreal width) const;

    MarkedText m_text;
    int m_lines = 1;
    QTextLayout m_layout;
    bool m_isElided = false;
    QPalette::ColorRole m_plainRole = QPalette::WindowText;
};
