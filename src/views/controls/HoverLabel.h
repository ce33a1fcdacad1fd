// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPointer>
#include <QWidget>

class QPropertyAnimation;

/// A short text that fades in over a widget, above all its neighbours, and fades out again. It lives in the window and
/// is kept inside the window's edges; it lets every click through.
class HoverLabel : public QWidget {
    Q_OBJECT
    Q_PROPERTY(qreal opacity READ opacity WRITE setOpacity)

public:
    struct Style {
        QMargins padding;
        qreal radius = 0.0;
        /// Of the gray behind the text, 0 to 1.
        qreal backgroundOpacity = 1.0;
    };

    /// Appears over `area` of the anchor, in the anchor's coordinates, and goes where the anchor goes.
    HoverLabel(QWidget* anchor, const QRect& area, const Style& style);

    void setText(const QString& text);
    [[nodiscard]] QString text() const { return m_text; }
    /// Fades, then deletes the label.
    void dismiss();

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] qreal opacity() const { return m_opacity; }
    void setOpacity(qreal opacity);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void fadeTo(qreal opacity);
    void place();

    QPointer<QWidget> m_anchor;
    QRect m_area;
    Style m_style;
    QString m_text;
    qreal m_opacity = 0.0;
    QPropertyAnimation* m_fade;
};

/// Where a label of a size stands: centred over the top edge of the anchor, below it where there is no room above, and
/// always inside the window. All in the window's coordinates.
[[nodiscard]] QRect hoverLabelRect(QSize label, const QRect& anchor, const QRect& window);
