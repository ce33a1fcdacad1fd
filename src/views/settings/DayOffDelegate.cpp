// SPDX-License-Identifier: GPL-3.0-or-later
#include "DayOffDelegate.h"

#include "CountingTexts.h"
#include "DaysOffModel.h"
#include "Fonts.h"
#include "Labels.h"
#include "PlainTree.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>

namespace {

constexpr int dayOffGap = 8;
constexpr int dayOffPadding = 8;
constexpr int scrollBarRoom = 12;
constexpr int usualNameWidth = 140;

const ListedDayOff* dayOffAt(const QModelIndex& index)
{
    return static_cast<const DaysOffModel*>(index.model())->dayAt(index);
}

} // namespace

DayOffDelegate::DayOffDelegate(const QFont& font, QObject* parent)
    : QStyledItemDelegate(parent)
    , m_font(font)
    , m_leastNameWidth(fonts::grown(usualNameWidth, font))
{
    const QFontMetrics metrics(font);
    for (int month = 1; month <= 12; ++month) {
        for (int day = 20; day < 27; ++day) { // each day of the week
            const QString date = counting_texts::dayAndMonth({2026, month, day});
            m_dateWidth = qMax(m_dateWidth, metrics.horizontalAdvance(date));
        }
    }
}

QSize DayOffDelegate::sizeHint(const QStyleOptionViewItem& /*option*/, const QModelIndex& /*index*/) const
{
    return {m_dateWidth, QFontMetrics(m_font).height() + dayOffPadding};
}

void DayOffDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    option->state.setFlag(QStyle::State_HasFocus, false);
    if (dayOffAt(index) != nullptr)
        option->text.clear(); // paintDay() draws its parts
}

void DayOffDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    painter->save();
    QStyledItemDelegate::paint(painter, PlainTree::withVisibleBox(option), index);
    if (const ListedDayOff* listed = dayOffAt(index)) {
        QStyleOptionViewItem row = option;
        initStyleOption(&row, index);
        paintDay(*painter, row, *listed);
    }
    PlainTree::drawRing(*painter, option);
    painter->restore();
}

DayOffDelegate::Places DayOffDelegate::placesIn(const QStyleOptionViewItem& option, const ListedDayOff& listed) const
{
    const QFontMetrics metrics(m_font);
    const QStyle* style = option.widget != nullptr ? option.widget->style() : QApplication::style();
    Places places;
    places.whole = style->subElementRect(QStyle::SE_ItemViewItemText, &option, option.widget);
    const QRect inside = places.whole.adjusted(4, 0, -scrollBarRoom, 0);
    places.date = {inside.topLeft(), QSize(m_dateWidth, inside.height())};
    places.name = inside.adjusted(m_dateWidth + dayOffGap, 0, 0, 0);
    const int noteWidth = metrics.horizontalAdvance(listed.note);
    if (!listed.note.isEmpty() && places.name.width() >= noteWidth + dayOffGap + m_leastNameWidth) {
        places.note = places.name.adjusted(places.name.width() - noteWidth, 0, 0, 0);
        places.name.adjust(0, 0, -noteWidth - dayOffGap, 0);
    }
    return places;
}

void DayOffDelegate::paintDay(QPainter& painter, const QStyleOptionViewItem& option, const ListedDayOff& listed) const
{
    const bool isSelected = option.state.testFlag(QStyle::State_Selected);
    const QColor text = option.palette.color(isSelected ? QPalette::HighlightedText : QPalette::WindowText);
    const QColor dim = isSelected ? text : option.palette.color(QPalette::PlaceholderText);
    const Places places = placesIn(option, listed);
    const auto draw = [&](const QRect& place, const QString& words, const QColor& color) {
        painter.setPen(color);
        painter.drawText(QStyle::visualRect(option.direction, places.whole, place),
                         static_cast<int>(QStyle::visualAlignment(option.direction, Qt::AlignLeft) | Qt::AlignVCenter),
                         painter.fontMetrics().elidedText(words, Qt::ElideRight, place.width()));
    };
    painter.setFont(m_font);
    const QColor& color = listed.isDim ? dim : text;
    draw(places.date, counting_texts::dayAndMonth(listed.day.date), color);
    draw(places.name, listed.day.name, color);
    draw(places.note, listed.note, dim);
}

bool DayOffDelegate::helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                               const QModelIndex& index)
{
    const ListedDayOff* listed = event->type() == QEvent::ToolTip && index.isValid() ? dayOffAt(index) : nullptr;
    if (listed == nullptr)
        return QStyledItemDelegate::helpEvent(event, view, option, index);
    QStyleOptionViewItem row = option;
    initStyleOption(&row, index);
    const Places places = placesIn(row, *listed);
    const bool isCut = places.note.isEmpty() != listed->note.isEmpty() ||
                       QFontMetrics(m_font).horizontalAdvance(listed->day.name) > places.name.width();
    QToolTip::showText(event->globalPos(), isCut ? labels::help(index.data().toString()) : QString(), view);
    return true;
}

bool DayOffDelegate::editorEvent(QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem& option,
                                 const QModelIndex& index)
{
    const bool isRelease = event->type() == QEvent::MouseButtonRelease;
    if (!isRelease || !index.flags().testFlag(Qt::ItemIsUserCheckable))
        return event->type() != QEvent::MouseButtonDblClick &&
               QStyledItemDelegate::editorEvent(event, model, option, index);
    if (static_cast<QMouseEvent*>(event)->button() != Qt::LeftButton)
        return false;
    const bool isChecked = index.data(Qt::CheckStateRole).toInt() == Qt::Checked;
    return model->setData(index, isChecked ? Qt::Unchecked : Qt::Checked, Qt::CheckStateRole);
}
