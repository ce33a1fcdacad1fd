// SPDX-License-Identifier: GPL-3.0-or-later
#include "StatusPicker.h"

#include "Accessibility.h"
#include "Day.h"
#include "Fonts.h"
#include "KeyCap.h"
#include "MenuStyle.h"
#include "StateGestures.h"
#include "StateMark.h"
#include "Symbol.h"
#include "Theme.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>

namespace {

constexpr QSize tickSize(16, 16);
constexpr QSize swatchSize(24, 18);
constexpr int gap = 8;
constexpr int cellGap = 2;

// All keys are as wide as the widest, so that the texts line up.
QSize keySize(const QFont& font)
{
    QSize size;
    for (const DayState state : allDayStates)
        size = size.expandedTo(keyCapSize(keyName(modifierFor(state)), font));
    return size;
}

using ClickKeys = StatusPicker::ClickKeys;

constexpr int marksWidth = tickSize.width() + gap + swatchSize.width();

QSize iconSize(const QFont& font, ClickKeys keys)
{
    if (keys == ClickKeys::Hidden)
        return {marksWidth, swatchSize.height()};
    const QSize key = keySize(font);
    return {marksWidth + gap + key.width(), qMax(swatchSize.height(), key.height())};
}

// A tick for the current state, the colour and mark of a state, and the modifier key that sets it in one click.
QPixmap drawIcon(DayState state, bool isCurrent, ClickKeys keys, QIcon::Mode mode, const QWidget& menu)
{
    // The entry that is about to be chosen is white on blue in both schemes.
    const bool isActive = mode == QIcon::Active;
    const QPalette colors = isActive ? paletteFor({ColorScheme::Dark}) : menu.palette();
    Theme theme = themeFor(menu.palette());
    if (isActive)
        theme.outline = Qt::white; // or blue would be on blue
    const QFont font = fonts::caption(menu.font());
    const QRect whole({}, iconSize(font, keys));
    QPixmap pixmap(whole.size() * menu.devicePixelRatioF());
    pixmap.setDevicePixelRatio(menu.devicePixelRatioF());
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setFont(font);
    const auto place = [&](Qt::Alignment side, const QSize& size) {
        return QStyle::alignedRect(menu.layoutDirection(), side | Qt::AlignVCenter, size, whole);
    };
    const QRect swatch = place(Qt::AlignLeft, {marksWidth, swatchSize.height()});
    painter.setRenderHint(QPainter::Antialiasing);
    if (isCurrent)
        drawSymbol(painter, place(Qt::AlignLeft, tickSize), Symbol::Tick, themeFor(colors).text);
    drawDaySwatch(painter, QStyle::alignedRect(menu.layoutDirection(), Qt::AlignRight, swatchSize, swatch), theme,
                  {1, state, true});
    if (const QString key = keyName(modifierFor(state)); keys == ClickKeys::Shown && !key.isEmpty())
        drawKeyCap(painter, place(Qt::AlignRight, keySize(font)), key, colors);
    return pixmap;
}

QIcon iconOf(DayState state, bool isCurrent, ClickKeys keys, const QWidget& menu)
{
    QIcon icon;
    for (const auto mode : {QIcon::Normal, QIcon::Active})
        icon.addPixmap(drawIcon(state, isCurrent, keys, mode, menu), mode);
    return icon;
}

// As wide as the icons of the states, so that the ticks are below one another.
QIcon makeTickIcon(bool isTicked, const QSize& size, const QWidget& menu)
{
    QIcon icon;
    for (const auto mode : {QIcon::Normal, QIcon::Active}) {
        QPixmap pixmap(size * menu.devicePixelRatioF());
        pixmap.setDevicePixelRatio(menu.devicePixelRatioF());
        pixmap.fill(Qt::transparent);
        const QColor color = mode == QIcon::Active ? QColor(Qt::white) : themeFor(menu.palette()).text;
        QPainter painter(&pixmap);
        if (isTicked)
            drawSymbol(painter,
                       QStyle::alignedRect(menu.layoutDirection(), Qt::AlignLeft | Qt::AlignVCenter, tickSize,
                                           QRect({}, size)),
                       Symbol::Tick, color);
        icon.addPixmap(pixmap, mode);
    }
    return icon;
}

QAction* addTickedTo(QMenu& menu, const QString& text, bool isTicked, const QSize& size)
{
    QAction* action = menu.addAction(makeTickIcon(isTicked, size, menu), text);
    action->setIconVisibleInMenu(true);
    action->setCheckable(true);
    action->setChecked(isTicked);
    return action;
}

} // namespace

StatusPicker::StatusPicker(std::optional<DayState> current, QWidget* parent, ClickKeys keys)
    : QMenu(parent)
    , m_current(current)
    , m_clickKeys(keys)
{
    setAttribute(Qt::WA_DeleteOnClose);
    MenuStyle::apply(*this, iconSize(fonts::caption(font()), keys));
    for (const DayState state : allDayStates)
        addState(state, m_letters.mark(description(state)));
}

void StatusPicker::setHeading(const QString& text)
{
    insertSection(m_states.first(), text);
    setAccessibleName(text);
}

QAction* StatusPicker::addEntry(const QString& text)
{
    return addAction(m_letters.mark(text));
}

QAction* StatusPicker::addTicked(const QString& text, bool isTicked)
{
    return addTickedTo(*this, m_letters.mark(text), isTicked, iconSize(fonts::caption(font()), m_clickKeys));
}

QMenu& StatusPicker::addSubmenu(const QString& text)
{
    QMenu& submenu = *addMenu(m_letters.mark(text));
    MenuStyle::apply(submenu, tickSize);
    return submenu;
}

QAction* StatusPicker::addTicked(QMenu& submenu, const QString& text, bool isTicked)
{
    return addTickedTo(submenu, text, isTicked, tickSize);
}

void StatusPicker::addState(DayState state, const QString& text)
{
    const bool isCurrent = state == m_current;
    QAction* action = addAction(iconOf(state, isCurrent, m_clickKeys, *this), text);
    m_states.append(action);
    action->setIconVisibleInMenu(true);
    action->setCheckable(true);
    action->setChecked(isCurrent);
    action->setShortcut(keyFor(state));
    action->setShortcutVisibleInContextMenu(true);
    connect(action, &QAction::triggered, this, [this, state] {
        close(); // assistive technology triggers the action alone
        Q_EMIT chosen(state);
    });
}

void StatusPicker::popUpBeside(const QRect& cell)
{
    if (QGuiApplication::mouseButtons() != Qt::NoButton)
        m_pressedAt = QCursor::pos();
    const QSize size = sizeHint();
    const QRect room = parentWidget()->screen()->availableGeometry();
    const int before = cell.left() - cellGap - size.width();
    const int after = cell.right() + 1 + cellGap;
    const bool fitsBefore = before >= room.left();
    const bool fitsAfter = after + size.width() <= room.right() + 1;
    const bool isAfter = isLeftToRight() ? fitsAfter || !fitsBefore : fitsAfter && !fitsBefore;
    popup({isAfter ? after : before, qMax(room.top(), qMin(cell.top(), room.bottom() + 1 - size.height()))});
    if (!m_pressedAt && m_current)
        setActiveAction(currentAction()); // which a screen reader says
    else if (!m_pressedAt)
        announce(*this, accessibleName());
}

QAction* StatusPicker::currentAction() const
{
    return m_states.at(static_cast<qsizetype>(m_current.value_or(DayState::UNKNOWN)));
}

void StatusPicker::keyPressEvent(QKeyEvent* event)
{
    if (activeAction() == nullptr && (event->key() == Qt::Key_Up || event->key() == Qt::Key_Down)) {
        setActiveAction(currentAction());
        return;
    }
    if (const auto state = stateForKey(*event)) {
        close();
        Q_EMIT chosen(*state);
        return;
    }
    QMenu::keyPressEvent(event);
}

void StatusPicker::mouseReleaseEvent(QMouseEvent* event)
{
    // The press that opened the menu may slip a little. It chooses only if it is drawn onto an entry.
    if (const auto pressedAt = std::exchange(m_pressedAt, {})) {
        const int way = (event->globalPosition().toPoint() - *pressedAt).manhattanLength();
        if (way < 2 * QApplication::startDragDistance() || actionAt(event->position().toPoint()) == nullptr)
            return;
    }
    QMenu::mouseReleaseEvent(event);
}
