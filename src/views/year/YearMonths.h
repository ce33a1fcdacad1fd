// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "MonthTile.h"
#include "Period.h"

#include <QWidget>

#include <vector>

/// The twelve months of a year, in as many columns as there is room for. The arrow keys move between them.
class YearMonths : public QWidget {
    Q_OBJECT

public:
    YearMonths(const CountingRecords& counting, const ViewSettings& viewSettings, QWidget* parent = nullptr);

    /// One for each month.
    void setContents(const QList<MonthTile::Contents>& contents);
    /// Takes as much of this width as it has use for.
    void fitInto(int width);
    /// `month` is 1 to 12.
    void focusMonth(int month, Qt::FocusReason reason);
    /// Gives the focus to the month that Tab would reach: the one that had it last.
    void focusCurrent(Qt::FocusReason reason);
    /// Lets Tab reach this month.
    void setCurrent(int month);

Q_SIGNALS:
    void opened(int month, Qt::FocusReason reason);
    /// An arrow key leads so many months from the first of this year, out of the year.
    void leftTo(int months);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    /// The place to which a key leads, which may be in another year; its own if the key leads nowhere.
    [[nodiscard]] int placeAfter(int key, int place) const;
    [[nodiscard]] bool moveFocus(int key, int place);

    std::vector<MonthTile*> m_tiles;
    int m_columns = 1;
    int m_current = 0;
    /// How a month is being opened.
    Qt::FocusReason m_reason = Qt::OtherFocusReason;
};
