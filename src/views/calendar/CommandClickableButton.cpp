// SPDX-License-Identifier: GPL-3.0-or-later
#include "CommandClickableButton.h"

#include "Accessibility.h"
#include "Fonts.h"
#include "HoverLabel.h"
#include "Outline.h"
#include "ReturnKey.h"
#include "StateMark.h"
#include "Theme.h"
#include "ViewSettings.h"

#include <QContextMenuEvent>
#include <QPainter>
#include <QStyle>

namespace {

constexpr QSize minimumFace(35, 26);
constexpr int cellRadius = 8;
constexpr QMargins cellMargins(6, 5, 6, 5);
// The number stands a little above the middle, which leaves room for the mark below it.
constexpr int numberLift = 4;
constexpr int markInset = 2;
constexpr qreal todayRingOutset = 2.5;
constexpr qreal focusRingOutset = 4.0;

constexpr HoverLabel::Style labelStyle{.padding = {10, 4, 10, 4}, .radius = 6.0, .backgroundOpacity = 0.9};

void drawRing(QPainter& painter, const QRectF& face, qreal outset, const QPen& pen)
{
    painter.setPen(pen);
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(face.marginsAdded({outset, outset, outset, outset}), cellRadius + outset,
                            cellRadius + outset);
}

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
    return QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter, faceSize(), rect());
}

QRect CommandClickableButton::markArea() const
{
    const int size = face().height() * 6 / minimumFace.height();
    const QRect inner = face().adjusted(markInset, markInset, -markInset, -markInset);
    return QStyle::alignedRect(layoutDirection(), Qt::AlignHCenter | Qt::AlignBottom, {size, size}, inner);
}

QRect CommandClickableButton::numberArea() const
{
    const QRect area(0, 0, face().width(), fontMetrics().capHeight());
    return area.translated(face().center() - area.center() - QPoint(0, numberLift / 2));
}

QSize CommandClickableButton::faceSize() const
{
    const QSize text = fontMetrics().size(Qt::TextSingleLine, QStringLiteral("30"));
    return text.grownBy({8, 3, 8, 3}).expandedTo(minimumFace);
}

QSize CommandClickableButton::sizeHint() const
{
    return faceSize().grownBy(cellMargins);
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
    if (!isPress(*event)) {
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
    if (!isPress(*event) || event->isAutoRepeat() || !isDown()) {
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
    const Theme& theme = themeFor(palette());
    const QRectF area = face();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(isDown() ? m_tint.darker(115) : m_tint);
    painter.drawRoundedRect(area, cellRadius, cellRadius);
    drawOutline(painter, area, cellRadius, theme);
    painter.setPen(readableTextOn(m_tint));
    painter.drawText(area.adjusted(0, 0, 0, -numberLift), Qt::AlignCenter, text());
    drawStateMark(painter, markArea(), m_state, painter.pen().color());
    if (m_ringed)
        drawRing(painter, area, todayRingOutset, {theme.text, 1.75});
    if (hasFocus() && m_focusVisible)
        drawRing(painter, area, focusRingOutset, {theme.accent, 2.0});
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

bool CommandClickableButton::isPress(const QKeyEvent& event) const
{
    // After a click, Return is for the default button of the dialog.
    return event.key() == Qt::Key_Space || (isReturn(event) && m_focusVisible);
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
        m_label = new HoverLabel(this, numberArea(), labelStyle);
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
    m_label->setText(*m_tooltipText, mark);
}
