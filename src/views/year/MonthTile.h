// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Day.h"
#include "FlatButton.h"

#include <QDate>
#include <QStringList>

class CountingRecords;
class ViewSettings;
struct Theme;

/// A small month: each day as a cell with the colour and the mark of its state. Resting on a day says what it is.
class MonthTile : public FlatButton {
    Q_OBJECT

public:
    struct Cell {
        /// As it is coloured.
        Day day;
        bool isDayOff = false;

        bool operator==(const Cell&) const = default;
    };
    struct Contents {
        QDate first;
        QString name;
        /// The letters above the columns.
        QStringList weekdays;
        int firstColumn = 0;
        /// One for each day of the month.
        QList<Cell> cells;
        qint64 inOffice = 0;
        qint64 workdays = 0;
        /// The day of the month that is today; 0 if none is.
        int today = 0;

        bool operator==(const Contents&) const = default;
    };

    MonthTile(const CountingRecords& counting, const ViewSettings& viewSettings, QWidget* parent);

    void setContents(const Contents& contents);
    /// How far apart the columns of days are.
    void setPitch(int pitch);
    [[nodiscard]] int widthFor(int pitch) const;
    /// The greatest pitch with which it is no wider than this, within bounds that suit the font.
    [[nodiscard]] int pitchFor(int width) const;
    [[nodiscard]] int leastWidth() const;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    [[nodiscard]] int rowPitch() const { return m_pitch - 2; }
    [[nodiscard]] int gridTop() const;
    [[nodiscard]] QString spokenName() const;
    [[nodiscard]] QRect cellRect(int day) const;
    /// The day at a place, 0 if there is none.
    [[nodiscard]] int dayAt(QPoint place) const;
    [[nodiscard]] QString helpAt(int day) const;
    void paintHeader(QPainter& painter, const Theme& theme) const;
    void paintCell(QPainter& painter, const Theme& theme, int day) const;

    const CountingRecords& m_counting;
    const ViewSettings& m_viewSettings;
    Contents m_contents;
    QFont m_letterFont;
    int m_pitch = 0;
};
