// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "MarkedText.h"

#include <QLabel>

class QTextLayout;

/// A line of text in which some words are bold; it wraps where it is too long. To assistive technology it is a label.
class MarkedTextLabel : public QLabel {
    Q_OBJECT

public:
    using QLabel::QLabel;

    void setMarkedText(const MarkedText& text);
    /// The colour of the words that are not bold.
    void setPlainRole(QPalette::ColorRole role) { m_plainRole = role; }

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;
    [[nodiscard]] bool hasHeightForWidth() const override { return true; }
    [[nodiscard]] int heightForWidth(int width) const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    /// Breaks the text into lines of the width; returns their size.
    QSizeF layOut(QTextLayout& layout, qreal width) const;

    MarkedText m_text;
    QPalette::ColorRole m_plainRole = QPalette::WindowText;
};
