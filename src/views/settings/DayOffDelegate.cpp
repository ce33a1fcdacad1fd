// SPDX-License-Identifier: GPL-3.0-or-later
#include "DayOffDelegate.h"

#include "CountingTexts.h"
#include "DaysOffModel.h"
#include "Fonts.h"
#include "PlainTree.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPainter>

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
    QStyledItemDelegate::paint(painter, option, index);
    if (const ListedDayOff* listed = dayOffAt(index)) {
        QStyleOptionViewItem row = option;
        initStyleOption(&row, index);
        const QStyle* style = row.widget != nullptr ? row.widget->style() : QApplication::style();
        paintDay(*painter, row, style->subElementRect(QStyle::SE_ItemViewItemText, &row, row.widget), *listed);
    }
    PlainTree::drawRing(*painter, option);
    painter->restore();
}

void DayOffDelegate::paintDay(QPainter& painter, const QStyleOptionViewItem& option, const QRect& area,
                              const ListedDayOff& listed) const
{
    const bool isSelected = option.state.testFlag(QStyle::State_Selected);
    const QColor text = option.palette.color(isSelected ? QPalette::HighlightedText : QPalette::WindowText);
    const QColor dim = isSelected ? text : option.palette.color(QPalette::PlaceholderText);
    const auto draw = [&](QRect place, const QString& words, Qt::Alignment edge, const QColor& color) {
        place = QStyle::visualRect(option.direction, area, place);
        const Qt::Alignment side = QStyle::visualAlignment(option.direction, edge) | Qt::AlignVCenter;
        painter.setPen(color);
        painter.drawText(place, static_cast<int>(side),
                         painter.fontMetrics().elidedText(words, Qt::ElideRight, place.width()));
    };
    painter.setFont(m_font);
    const QColor& color = listed.isDim ? dim : text;
    QRect rest = area.adjusted(4, 0, -scrollBarRoom, 0);
    draw({rest.topLeft(), QSize(m_dateWidth, rest.height())}, counting_texts::dayAndMonth(listed.day.date),
         Qt::AlignLeft, color);
    rest.adjust(m_dateWidth + dayOffGap, 0, 0, 0);
    const int noteWidth = painter.fontMetrics().horizontalAdvance(listed.note);
    if (!listed.note.isEmpty() && rest.width() >= noteWidth + dayOffGap + m_leastNameWidth) {
        draw(rest, listed.note, Qt::AlignRight, dim);
        rest.adjust(0, 0, -noteWidth - dayOffGap, 0);
    }
    draw(rest, listed.day.name, Qt::AlignLeft, color);
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
