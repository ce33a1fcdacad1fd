// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStyledItemDelegate>

struct ListedDayOff;

/// Draws the rows of a DaysOffModel: date and name, and at the end the note if there is room for it. A click anywhere
/// in a row turns its checkbox. Help shows what does not fit.
class DayOffDelegate : public QStyledItemDelegate {
    Q_OBJECT

public:
    explicit DayOffDelegate(const QFont& font, QObject* parent = nullptr);

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;
    bool editorEvent(QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem& option,
                     const QModelIndex& index) override;

private:
    /// Where the parts of a row are, from left to right. The note is left out where there is no room for it.
    struct Places {
        QRect whole;
        QRect date;
        QRect name;
        QRect note;
    };

    [[nodiscard]] Places placesIn(const QStyleOptionViewItem& option, const ListedDayOff& listed) const;
    void paintDay(QPainter& painter, const QStyleOptionViewItem& option, const ListedDayOff& listed) const;

    QFont m_font;
    int m_dateWidth = 0;
    int m_leastNameWidth;
};
