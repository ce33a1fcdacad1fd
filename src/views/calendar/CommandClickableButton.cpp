// SPDX-License-Identifier: GPL-3.0-or-later
#include "CommandClickableButton.h"

#include "Accessibility.h"
#include "DayCellPainter.h"
#include "Fonts.h"
#include "HoverLabel.h"
#include "StateMark.h"
#include "Theme.h"
#include "ViewSettings.h"

#include <QContextMenuEvent>
#include <QPainter>

namespace {

constexpr HoverLabel::Style labelStyle{.padding = {10, 4, 10, 4}, .radius = 6.0, .backgroundOpacity = 0.9};

} // namespace

CommandClickableButton::CommandClickableButton(Actions actions, const ViewSettings& viewSettings, QWidget* parent)
    : QAbstractButton(parent)
    , m_actions(std::move(actions))
    , m_viewSettings(viewSettings)
{
    setAccessibleMenuButton(*this);
    setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Minimum);
    setFont(fonts::body(font()));
    setMouseTracking(true);
    // Only assistive technology emits this; mouse and keys have modifiers and call run() themselves.
    connect(this, &QAbstractButton::clicked, this, &CommandClickableButton::runWithFocus);
}

CommandClickableButton::~CommandClickableButton()
{
    delete m_label;
}

void CommandClickableButton::setTint(const QColor& tint)
{
    if (m_tint == tint)
        return;
    m_tint = tint;
    update();
}

void CommandClickableButton::setState(DayState state)
{
    if (m_state == state)
        return;
    m_state = state;
    updateLabel();
    update();
}

void CommandClickableButton::setTooltipText(const std::optional<QString>& text)
{
    m_tooltipText = text;
    updateLabel();
}

void CommandClickableButton::setNote(const QString& note)
{
    if (m_note == note)
        return;
    m_note = note;
    updateLabel();
    update();
}

void CommandClickableButton::setDayOff(bool isDayOff)
{
    if (m_isDayOff == isDayOff)
        return;
    m_isDayOff = isDayOff;
    update();
}

void CommandClickableButton::setSelected(const SelectedRun& run)
{
    if (m_selected == run)
        return;
    m_selected = run;
    update();
}

void CommandClickableButton::setSpokenName(const QString& name)
{
    if (accessibleName() == name)
        return;
    setAccessibleName(name);
    if (!hasFocus() || m_isFocusNew)
        return;
    const auto announceUnlessLeft = [this] {
        // Another month gives all buttons new names, then moves the focus.
        if (hasFocus())
            announceNewName(*this);
    };
    QMetaObject::invokeMethod(this, announceUnlessLeft, Qt::QueuedConnection);
}

void CommandClickableButton::setRinged(bool ringed)
{
    if (m_ringed == ringed)
        return;
    m_ringed = ringed;
    update();
}

void CommandClickableButton::resetHover()
{
    setShowTooltip(false);
}

QRect CommandClickableButton::face() const
{
    return cellPainter().face();
}

QRect CommandClickableButton::markArea() const
{
    return cellPainter().markArea();
}

QRect CommandClickableButton::noteArea() const
{
    return cellPainter().noteArea();
}

QSize CommandClickableButton::sizeHint() const
{
    return DayCellPainter::sizeHint(fontMetrics());
}

DayCellPainter CommandClickableButton::cellPainter() const
{
    return {rect(), fontMetrics(), layoutDirection()};
}

void CommandClickableButton::contextMenuEvent(QContextMenuEvent* /*event*/)
{
    requestMenu();
}

void CommandClickableButton::leaveEvent(QEvent* event)
{
    QAbstractButton::leaveEvent(event);
    setHovered(false);
}

void CommandClickableButton::focusInEvent(QFocusEvent* event)
{
    m_focusVisible.update(event->reason());
    // A menu takes the focus from a screen reader, but not always from Qt, which is then silent about its return.
    if (event->reason() == Qt::PopupFocusReason) {
        QAccessibleEvent returned(this, QAccessible::Focus);
        QAccessible::updateAccessibility(&returned);
    }
    m_isFocusNew = true;
    QMetaObject::invokeMethod(
        this, [this] { m_isFocusNew = false; }, Qt::QueuedConnection);
    QAbstractButton::focusInEvent(event);
}

void CommandClickableButton::hideEvent(QHideEvent* event)
{
    resetHover();
    QAbstractButton::hideEvent(event);
}

void CommandClickableButton::keyPressEvent(QKeyEvent* event)
{
    // Qt sends a context menu event for the Menu key only.
    if (event->key() == Qt::Key_F10 && event->modifiers() == Qt::ShiftModifier) {
        requestMenu();
        return;
    }
    if (stateForKey(*event)) {
        m_focusVisible.show();
        update();
    }
    // The grid handles all other keys.
    if (event->key() != Qt::Key_Space) {
        event->ignore();
        return;
    }
    if (!event->isAutoRepeat()) {
        m_heldAtKeyPress = event->modifiers();
        m_focusVisible.show();
        setDown(true);
    }
}

void CommandClickableButton::keyReleaseEvent(QKeyEvent* event)
{
    if (event->key() != Qt::Key_Space || event->isAutoRepeat() || !isDown()) {
        event->ignore();
        return;
    }
    setDown(false);
    run(m_heldAtKeyPress);
}

void CommandClickableButton::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton) {
        event->ignore();
        return;
    }
    setDown(true);
}

void CommandClickableButton::mouseMoveEvent(QMouseEvent* event)
{
    // Leaving the cell cancels the click, even if the pointer comes back.
    const bool isInside = hitButton(event->position().toPoint());
    if (isDown() && !isInside)
        setDown(false);
    // Not when the pointer enters: with Wayland, an enter event also follows when a menu closes, even if the pointer
    // has gone, and then no leave event does.
    if (isInside)
        setHovered(true);
}

void CommandClickableButton::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton || !isDown()) {
        event->ignore();
        return;
    }
    setDown(false);
    if (hitButton(event->position().toPoint()))
        run(event->modifiers());
}

void CommandClickableButton::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    const DayCellLook look{text(),     m_tint,   m_state,  !m_note.isEmpty(),
                           m_isDayOff, m_ringed, isDown(), hasFocus() && m_focusVisible,
                           m_selected};
    cellPainter().paint(painter, look, themeFor(palette()));
}

void CommandClickableButton::run(Qt::KeyboardModifiers held)
{
    switch (clickModifier(held)) {
    case ClickModifier::Command:
        return m_actions.commandAction();
    case ClickModifier::Option:
        return m_actions.optionAction();
    case ClickModifier::Shift:
        return m_actions.shiftAction();
    case ClickModifier::None:
        return m_actions.action();
    }
}

void CommandClickableButton::runWithFocus()
{
    run(Qt::NoModifier);
    setFocus(Qt::OtherFocusReason); // so that the new state is said
}

void CommandClickableButton::requestMenu()
{
    setFocus(Qt::OtherFocusReason);
    setHovered(false); // the menu takes the pointer
    Q_EMIT menuRequested();
}

void CommandClickableButton::setHovered(bool inside)
{
    if (m_viewSettings.showStatusLabelOnHover)
        setShowTooltip(inside);
}

void CommandClickableButton::setShowTooltip(bool show)
{
    if (show && m_tooltipText && !m_label) {
        m_label = new HoverLabel(this, cellPainter().numberArea(), labelStyle);
        updateLabel();
    } else if (!show && m_label) {
        m_label->dismiss();
        m_label.clear();
    }
}

void CommandClickableButton::updateLabel()
{
    if (!m_label || !m_tooltipText)
        return;
    HoverLabel::Mark mark;
    if (m_state != DayState::UNKNOWN)
        mark = [state = m_state](QPainter& painter, const QRectF& area) {
            drawStateMark(painter, area, state, Qt::white);
        };
    m_label->setText(*m_tooltipText, mark, m_note);
}
