// SPDX-License-Identifier: GPL-3.0-or-later
#include "DaysOffTree.h"

#include "DayOffDelegate.h"
#include "DaysOffModel.h"
#include "Fonts.h"

#include <QKeyEvent>

namespace {

constexpr int mostRowsShown = 9;
constexpr int fewestRowsShown = 4;

} // namespace

DaysOffTree::DaysOffTree(DaysOffModel& model, QWidget* parent)
    : PlainTree(parent)
    , m_model(model)
{
    setItemDelegate(new DayOffDelegate(font(), this));
    setModel(&model);
    connect(this, &QTreeView::expanded, this, &QWidget::updateGeometry);
    connect(this, &QTreeView::collapsed, this, &QWidget::updateGeometry);
}

void DaysOffTree::showFrom(QDate date)
{
    const QModelIndex day = m_model.indexNear(date);
    for (int row = 0; row < m_model.rowCount(); ++row) {
        const QModelIndex year = m_model.index(row, 0);
        setExpanded(year, m_model.yearAt(year) >= date.year() || year == day.parent());
    }
    selectionModel()->setCurrentIndex(day, QItemSelectionModel::NoUpdate);
    scrollTo(day, PositionAtCenter);
    updateGeometry();
}

void DaysOffTree::selectCurrent()
{
    selectionModel()->select(currentIndex(), QItemSelectionModel::ClearAndSelect);
}

QList<QDate> DaysOffTree::selectedDates() const
{
    QList<QDate> dates;
    for (const QModelIndex& index : selectedIndexes()) {
        if (const ListedDayOff* listed = m_model.dayAt(index))
            dates.append(listed->day.date);
    }
    return dates;
}

QDate DaysOffTree::currentDate() const
{
    const ListedDayOff* listed = m_model.dayAt(currentIndex());
    return listed == nullptr ? QDate() : listed->day.date;
}

int DaysOffTree::heightOf(int rows) const
{
    return rows * itemDelegate()->sizeHint({}, {}).height() + 2 * frameWidth();
}

QSize DaysOffTree::sizeHint() const
{
    int rows = 0;
    for (QModelIndex row = m_model.index(0, 0); row.isValid() && rows < mostRowsShown; row = indexBelow(row))
        ++rows;
    return {fonts::grown(320, font()), heightOf(rows)};
}

QSize DaysOffTree::minimumSizeHint() const
{
    return {fonts::grown(200, font()), heightOf(fewestRowsShown)};
}

void DaysOffTree::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Delete && selectionMode() != NoSelection)
        Q_EMIT removalRequested();
    else
        PlainTree::keyPressEvent(event);
}

void DaysOffTree::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected)
{
    PlainTree::selectionChanged(selected, deselected);
    Q_EMIT selectedChanged();
}
