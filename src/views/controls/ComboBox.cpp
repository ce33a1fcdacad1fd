// SPDX-License-Identifier: GPL-3.0-or-later
#include "ComboBox.h"

#include "Fonts.h"
#include "Outline.h"
#include "ReturnKey.h"
#include "Symbol.h"
#include "Theme.h"
#include "ThinScrollBarStyle.h"

#include <QAbstractItemView>
#include <QKeyEvent>
#include <QPainter>
#include <QProxyStyle>
#include <QStyledItemDelegate>
#include <QWheelEvent>

namespace {

constexpr QMargins comboPadding(9, 6, 9, 7);
constexpr int arrowRoom = 24;
constexpr int usualArrowSize = 12;
constexpr int leastComboWidth = 140;
constexpr int mostEntriesShown = 12;

// The list opens below the field and scrolls, which a menu over the field would not.
class ListBelowStyle : public QProxyStyle {
public:
    [[nodiscard]] int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                                QStyleHintReturn* returned) const override
    {
        return hint == SH_ComboBox_Popup ? 0 : QProxyStyle::styleHint(hint, option, widget, returned);
    }
};

class RoomyDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        return QStyledItemDelegate::sizeHint(option, index).grownBy({4, 4, 4, 4});
    }
};

} // namespace

ComboBox::ComboBox(const QString& name, QWidget* parent)
    : QComboBox(parent)
{
    auto* style = new ListBelowStyle;
    style->setParent(this);
    setStyle(style);
    setFont(fonts::body(font()));
    setAccessibleName(name);
    setAccessibleDescription(name); // because on Linux Qt reports the chosen entry as the name
    setMaxVisibleItems(mostEntriesShown);
    setItemDelegate(new RoomyDelegate(this));
    setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    ThinScrollBarStyle::applyTo(*view());
    view()->installEventFilter(this);
}

QSize ComboBox::sizeHint() const
{
    int widest = 0;
    for (int i = 0; i < count(); ++i)
        widest = qMax(widest, fontMetrics().horizontalAdvance(itemText(i)));
    constexpr int rounding = 1; // of a width that is no whole number
    return QSize(widest + rounding + arrowRoom, fontMetrics().height()).grownBy(comboPadding);
}

QSize ComboBox::minimumSizeHint() const
{
    return sizeHint().boundedTo({fonts::grown(leastComboWidth, font()), QWIDGETSIZE_MAX});
}

void ComboBox::showPopup()
{
    view()->setMinimumWidth(sizeHint().width()); // also where the field is narrower than its entries
    QComboBox::showPopup();
}

bool ComboBox::eventFilter(QObject* watched, QEvent* event)
{
    // Escape closes the list, and not the window as well.
    if (event->type() == QEvent::ShortcutOverride && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape)
        event->accept();
    return QComboBox::eventFilter(watched, event);
}

void ComboBox::keyPressEvent(QKeyEvent* event)
{
    if (isReturn(*event))
        showPopup();
    else
        QComboBox::keyPressEvent(event);
}

void ComboBox::paintEvent(QPaintEvent* /*event*/)
{
    drawField(*this);
    const Theme& theme = themeFor(palette());
    const QRect inside = rect().marginsRemoved(comboPadding);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(isEnabled() ? theme.text : theme.disabledText);
    const QRect words = QStyle::visualRect(layoutDirection(), inside, inside.adjusted(0, 0, -arrowRoom, 0));
    const Qt::Alignment side = QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft) | Qt::AlignVCenter;
    painter.drawText(words, static_cast<int>(side),
                     fontMetrics().elidedText(currentText(), Qt::ElideRight, words.width()));
    const int arrow = fonts::grown(usualArrowSize, font());
    const QRect place =
        QStyle::alignedRect(layoutDirection(), Qt::AlignRight | Qt::AlignVCenter, {arrow, arrow}, inside);
    painter.translate(QRectF(place).center());
    painter.rotate(90);
    drawSymbol(painter, QRectF(-arrow / 2.0, -arrow / 2.0, arrow, arrow), Symbol::GreaterThan, theme.dimText);
}

void ComboBox::wheelEvent(QWheelEvent* event)
{
    event->ignore();
}
