// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "MarkedText.h"

#include <QLabel>
#include <QTextLayout>

/// A line of text in which some words are bold; it wraps where it is too long. To assistive technology it is a label.
class MarkedTextLabel : public QLabel {
    Q_OBJECT

public:
    using QLabel::QLabel;

    void setMarkedText(const MarkedText& text);
    /// The colour of the words that are not bold.
    void setPlainRole(QPalette::ColorRole role);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;
    [[nodiscard]] bool hasHeightForWidth() const override { return true; }
    [[nodiscard]] int heightForWidth(int width) const override;

protected:
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    static constexpr qreal notLaidOut = -1.0;

    /// Breaks the text into lines of the width; returns their size.
    QSizeF layOut(qreal width) const;
    void prepareLayout() const;

    MarkedText m_text;
    /// The text as it was laid out last: a layout asks for the same widths again and again.
    mutable QTextLayout m_layout;
    mutable QSizeF m_size;
    mutable qreal m_width = notLaidOut;
    QPalette::ColorRole m_plainRole = QPalette::WindowText;
};
