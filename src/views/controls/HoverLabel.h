// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPointer>
#include <QWidget>

#include <functional>

class QPropertyAnimation;

/// A short text that fades in over a widget and out again, with the first lines of another below it. A window has one
/// at a time: a new one takes the place of another. It is a child of the window, so that neighbours cannot cover it,
/// stays inside the window and ignores the mouse.
class HoverLabel : public QWidget {
    Q_OBJECT
    Q_PROPERTY(qreal opacity READ opacity WRITE setOpacity)

public:
    struct Style {
        QMargins padding;
        qreal radius = 0.0;
        /// 0 to 1.
        qreal backgroundOpacity = 1.0;
    };

    /// `area` is in the coordinates of the anchor, which the label follows when it moves.
    HoverLabel(QWidget* anchor, const QRect& area, const Style& style);

    /// Paints a mark before the text, in a square area.
    using Mark = std::function<void(QPainter& painter, const QRectF& area)>;

    void setText(const QString& text, const Mark& mark = {}, const QString& below = {});
    [[nodiscard]] QString text() const { return m_text; }
    /// Fades out, then deletes the label.
    void dismiss();

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] qreal opacity() const { return m_opacity; }
    void setOpacity(qreal opacity);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void fadeTo(qreal opacity);
    void reposition();
    /// The sides of the square of the mark, and the room it takes with its distance from the text.
    [[nodiscard]] int markSize() const;
    [[nodiscard]] int markRoom() const;
    [[nodiscard]] QStringList linesBelow() const;
    /// The width that lines may have.
    [[nodiscard]] int room() const;

    QPointer<QWidget> m_anchor;
    QRect m_area;
    Style m_style;
    QString m_text;
    Mark m_mark;
    QString m_below;
    qreal m_opacity = 0.0;
    QPropertyAnimation* m_fade;
};

/// Where a label of this size goes: centred above the anchor, or below it if there is no room above, and always inside
/// the window. All in the coordinates of the window.
[[nodiscard]] QRect hoverLabelRect(QSize label, const QRect& anchor, const QRect& window);
