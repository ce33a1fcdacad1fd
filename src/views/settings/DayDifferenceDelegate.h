// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStyledItemDelegate>

struct Day;

/// Draws the rows of a RestoreModel: a day with its state before and after as marks and words.
class DayDifferenceDelegate : public QStyledItemDelegate {
    Q_OBJECT

public:
    explicit DayDifferenceDelegate(const QFont& font, QObject* parent = nullptr);

    /// Widens the room of a state so that each of these fits.
    void makeRoomFor(const QStringList& states);
    /// Sets the room that a day has. Where it is narrow, the states stand below the date. Returns whether the height of
    /// rows has changed.
    bool setWidth(int width);

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

private:
    void paintDay(QPainter& painter, const QStyleOptionViewItem& option, const QModelIndex& index) const;
    void paintState(QPainter& painter, const QStyleOptionViewItem& option, const QRect& area, const Day& day,
                    const QString& name) const;
    [[nodiscard]] int lineHeight() const;

    QFont m_font;
    QSize m_swatch;
    int m_dateWidth = 0;
    int m_stateWidth = 0;
    bool m_isNarrow = false;
};
