// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "FocusVisible.h"
#include "SelectedRun.h"
#include "StateGestures.h"

#include <QAbstractButton>
#include <QPointer>

#include <functional>
#include <optional>

class DayCellPainter;
class HoverLabel;
class ViewSettings;

/// A small coloured button that runs one of four actions, depending on the modifier key held, and can show a label on
/// hover. Space does the same as a click.
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
    /// Shows the mark of a state below the number, and before the text of the label.
    void setState(DayState state);
    void setTooltipText(const std::optional<QString>& text);
    /// Shows a dot if there is a note, and its first lines in the label.
    void setNote(const QString& note);
    /// Draws a thin outline inside the button.
    void setDayOff(bool isDayOff);
    /// Draws a ground behind the button, which joins that of its neighbours.
    void setSelected(const SelectedRun& run);
    /// Sets the accessible name. A screen reader says a change while the button has the focus.
    void setSpokenName(const QString& name);
    /// Draws a ring around the button, which marks today.
    void setRinged(bool ringed);
    [[nodiscard]] bool isRinged() const { return m_ringed; }
    /// Hides the label, whatever the setting.
    void resetHover();
    /// The coloured part. The margin around it is for the rings, and reacts like it.
    [[nodiscard]] QRect face() const;
    /// Where the mark of the state is, and the dot of a note.
    [[nodiscard]] QRect markArea() const;
    [[nodiscard]] QRect noteArea() const;

    [[nodiscard]] QSize sizeHint() const override;

Q_SIGNALS:
    /// Emitted on a right click, the Menu key or Shift+F10.
    void menuRequested();

protected:
    void contextMenuEvent(QContextMenuEvent* event) override;
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
    [[nodiscard]] DayCellPainter cellPainter() const;
    void run(Qt::KeyboardModifiers held);
    void runWithFocus();
    void requestMenu();
    void setHovered(bool inside);
    void setShowTooltip(bool show);
    void updateLabel();

    Actions m_actions;
    const ViewSettings& m_viewSettings;
    QColor m_tint;
    DayState m_state = DayState::UNKNOWN;
    std::optional<QString> m_tooltipText;
    QString m_note;
    QPointer<HoverLabel> m_label;
    Qt::KeyboardModifiers m_heldAtKeyPress;
    FocusVisible m_focusVisible;
    SelectedRun m_selected;
    bool m_ringed = false;
    bool m_isDayOff = false;
    /// Whether a screen reader is about to say the button because it just got the focus.
    bool m_isFocusNew = false;
};
