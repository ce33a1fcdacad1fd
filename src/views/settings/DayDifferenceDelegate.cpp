// SPDX-License-Identifier: GPL-3.0-or-later
#include "DayDifferenceDelegate.h"

#include "Day.h"
#include "Fonts.h"
#include "Month.h"
#include "PlainTree.h"
#include "RestoreModel.h"
#include "StateMark.h"
#include "Theme.h"

#include <QApplication>
#include <QPainter>

#include <utility>

namespace {

constexpr int differenceGap = 8;
constexpr int arrowWidth = 28;
constexpr int linePadding = 4;
constexpr QSize usualSwatch(22, 16);

} // namespace

DayDifferenceDelegate::DayDifferenceDelegate(const QFont& font, QObject* parent)
    : QStyledItemDelegate(parent)
    , m_font(font)
    , m_swatch(fonts::grown(usualSwatch.width(), font), fonts::grown(usualSwatch.height(), font))
{
    const QFontMetrics metrics(font);
    for (int month = 1; month <= 12; ++month) {
        for (int day = 20; day < 27; ++day) { // each day of the week
            const QString date = QLocale().toString(QDate(2026, month, day), RestoreModel::tr("ddd d MMMM"));
            m_dateWidth = qMax(m_dateWidth, metrics.horizontalAdvance(date));
        }
    }
    for (const DayState state : allDayStates)
        makeRoomFor({description(state)});
}

void DayDifferenceDelegate::makeRoomFor(const QStringList& states)
{
    const QFontMetrics metrics(m_font);
    for (const QString& state : states)
        m_stateWidth = qMax(m_stateWidth, m_swatch.width() + differenceGap + metrics.horizontalAdvance(state));
}

bool DayDifferenceDelegate::setWidth(int width)
{
    const bool isNarrow = width < m_dateWidth + 4 * differenceGap + 2 * m_stateWidth + arrowWidth;
    return std::exchange(m_isNarrow, isNarrow) != isNarrow;
}

int DayDifferenceDelegate::lineHeight() const
{
    return qMax(QFontMetrics(m_font).height(), m_swatch.height()) + linePadding;
}

QSize DayDifferenceDelegate::sizeHint(const QStyleOptionViewItem& /*option*/, const QModelIndex& /*index*/) const
{
    return {m_dateWidth, lineHeight() * (m_isNarrow ? 2 : 1) + linePadding};
}

void DayDifferenceDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    painter->save();
    if (index.data(RestoreModel::differenceRole).isValid()) {
        paintDay(*painter, option, index);
    } else {
        QStyleOptionViewItem row = PlainTree::withVisibleBox(option);
        row.state.setFlag(QStyle::State_HasFocus, false);
        QStyledItemDelegate::paint(painter, row, index);
    }
    PlainTree::drawRing(*painter, option);
    painter->restore();
}

void DayDifferenceDelegate::paintDay(QPainter& painter, const QStyleOptionViewItem& option,
                                     const QModelIndex& index) const
{
    const auto day = index.data(RestoreModel::differenceRole).value<DayDifference>();
    const bool isWorkday = isMondayToFriday(day.date);
    const QRect whole = option.rect.adjusted(differenceGap, linePadding / 2, -differenceGap, -linePadding / 2);
    const auto place = [&](QRect area) { return QStyle::visualRect(option.direction, whole, area); };
    const QRect date(whole.topLeft(), QSize(m_dateWidth, m_isNarrow ? lineHeight() : whole.height()));
    QRect states =
        m_isNarrow ? whole.adjusted(0, lineHeight(), 0, 0) : whole.adjusted(m_dateWidth + 2 * differenceGap, 0, 0, 0);
    const int stateWidth = qMin(m_stateWidth, (states.width() - arrowWidth) / 2);
    painter.setFont(m_font);
    painter.setPen(option.palette.color(QPalette::WindowText));
    const int edge = static_cast<int>(QStyle::visualAlignment(option.direction, Qt::AlignLeft) | Qt::AlignVCenter);
    painter.drawText(place(date), edge, QLocale().toString(day.date, RestoreModel::tr("ddd d MMMM")));
    states.setWidth(stateWidth);
    paintState(painter, option, place(states), {day.date.day(), day.before, isWorkday},
               index.data(RestoreModel::beforeRole).toString());
    const QRect arrow(states.right() + 1, states.top(), arrowWidth, states.height());
    painter.setPen(option.palette.color(QPalette::PlaceholderText));
    painter.drawText(place(arrow), Qt::AlignCenter, QString(option.direction == Qt::LeftToRight ? u'→' : u'←'));
    states.moveLeft(arrow.right() + 1);
    paintState(painter, option, place(states), {day.date.day(), day.after, isWorkday},
               index.data(RestoreModel::afterRole).toString());
}

void DayDifferenceDelegate::paintState(QPainter& painter, const QStyleOptionViewItem& option, const QRect& area,
                                       const Day& day, const QString& name) const
{
    const QRect swatch = QStyle::alignedRect(option.direction, Qt::AlignLeft | Qt::AlignVCenter, m_swatch, area);
    drawDaySwatch(painter, swatch, themeFor(option.palette), day);
    const QRect words =
        QStyle::visualRect(option.direction, area, area.adjusted(m_swatch.width() + differenceGap, 0, 0, 0));
    painter.setPen(option.palette.color(QPalette::WindowText));
    const int edge = static_cast<int>(QStyle::visualAlignment(option.direction, Qt::AlignLeft) | Qt::AlignVCenter);
    painter.drawText(words, edge, painter.fontMetrics().elidedText(name, Qt::ElideRight, words.width()));
}
