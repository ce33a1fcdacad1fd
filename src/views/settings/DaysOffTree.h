// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "PlainTree.h"

#include <QDate>

class DaysOffModel;

/// The list of days off of a DaysOffModel. As high as its rows, up to a limit from which on it scrolls.
class DaysOffTree : public PlainTree {
    Q_OBJECT

public:
    explicit DaysOffTree(DaysOffModel& model, QWidget* parent = nullptr);

    /// Opens the years from that of a date on, and goes to the day off at that date or next to it.
    void showFrom(QDate date);
    /// Selects the row that the keyboard has reached, and no other.
    void selectCurrent();
    /// The dates of the selected rows.
    [[nodiscard]] QList<QDate> selectedDates() const;
    /// The date of the row that the keyboard has reached; an invalid one if that is a year.
    [[nodiscard]] QDate currentDate() const;

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

Q_SIGNALS:
    void selectedChanged();
    /// Delete was pressed.
    void removalRequested();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;

private:
    [[nodiscard]] int heightOf(int rows) const;

    DaysOffModel& m_model;
};
