// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "MarkedText.h"

#include <QLabel>
#include <QTextLayout>

/// A label that wraps and has some words in bold. To assistive technology it is a plain label.
class MarkedTextLabel : public QLabel {
    Q_OBJECT

public:
    using QLabel::QLabel;

    void setMarkedText(const MarkedText& text);
    /// Sets the colour of the words that are not bold.
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

    /// Breaks the text into lines of this width and returns their size.
    QSizeF layOut(qreal width) const;
    void prepareLayout() const;

    MarkedText m_text;
    /// The last layout, kept because layouts ask for the same widths repeatedly.
    mutable QTextLayout m_layout;
    mutable QSizeF m_size;
    mutable qreal m_width = notLaidOut;
    QPalette::ColorRole m_plainRole = QPalette::WindowText;
};
