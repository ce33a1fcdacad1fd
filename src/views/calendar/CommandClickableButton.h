// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "FocusVisible.h"
#include "StateGestures.h"

#include <QAbstractButton>
#include <QPointer>

#include <functional>
#include <optional>

class HoverLabel;
class ViewSettings;

/// A small coloured button that runs one of four actions, by the key held during the click, and can show a label while
/// the pointer rests on it. Space with the same keys does what a click does.
class CommandClickableButton : public QAbstractButton {
    Q_OBJECT

public:
    using Action = std::function<void()>;

    struct Actions {
        Action action;
        Action commandAction;
        Action optionAction;
        Action shiftAction;
    };

    CommandClickableButton(Actions actions, const ViewSettings& viewSettings, QWidget* parent = nullptr);
    ~CommandClickableButton() override;

    void setTint(const QColor& tint);
    [[nodiscard]] QColor tint() const { return m_tint; }
    void setTooltipText(const std::optional<QString>& text);
    /// Draws a ring around the button.
    void setRinged(bool ringed);
    [[nodiscard]] bool isRinged() const { return m_ringed; }
    [[nodiscard]] bool showTooltip() const { return m_showTooltip; }
    /// Hides the label, as for a button that has just been made.
    void resetHover();
    /// The coloured part, in which a click counts. Around it there is room for the rings.
    [[nodiscard]] QRect face() const;

    [[nodiscard]] QSize sizeHint() const override;

Q_SIGNALS:
    /// A right click, the Menu key or Shift+F10.
    void menuRequested(const QPoint& globalPosition);

protected:
    bool hitButton(const QPoint& position) const override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void run(Qt::KeyboardModifiers held);
    /// Where a menu opens that was asked for with the keyboard.
    [[nodiscard]] QPoint menuCorner() const;
    void requestMenu(const QPoint& globalPosition);
    void hover(bool inside);
    void setShowTooltip(bool show);

    Actions m_actions;
    const ViewSettings& m_viewSettings;
    QColor m_tint;
    std::optional<QString> m_tooltipText;
    QPointer<HoverLabel> m_label;
    Qt::KeyboardModifiers m_heldAtKeyPress;
    FocusVisible m_focusVisible;
    bool m_showTooltip = false;
    bool m_ringed = false;
};
