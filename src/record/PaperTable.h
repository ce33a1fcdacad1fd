// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Day.h"
#include "RecordPaper.h"

#include <QList>
#include <QStringList>

#include <optional>

struct PaperColumn {
    QString title;
    /// The share of the width.
    qreal share = 1.0;
    Qt::Alignment alignment = Qt::AlignLeft;
};

struct PaperRow {
    QStringList cells;
    bool isStrong = false;
    bool isShaded = false;
    /// Its colour and mark are before the text of the second column.
    std::optional<Day> swatch = {};
    bool isDayOff = false;
};

/// A table on the pages of a record. A row is never cut by the end of a page, unless it is higher than a page. The
/// heading is on each page.
class PaperTable {
public:
    PaperTable(RecordPaper& paper, const QList<PaperColumn>& columns);

    void add(const PaperRow& row) { m_rows.append(measured(row)); }
    /// With the heading.
    [[nodiscard]] qreal height() const;
    /// Of the heading and the first row.
    [[nodiscard]] qreal leastHeight() const;
    void draw();

private:
    struct MeasuredRow {
        PaperRow row;
        QList<QStringList> lines;
        qsizetype lineCount = 1;
    };

    [[nodiscard]] MeasuredRow measured(const PaperRow& row) const;
    [[nodiscard]] qreal heightOf(const MeasuredRow& row) const;
    [[nodiscard]] qreal columnWidth(qsizetype column) const;
    void drawHeading();
    void drawRow(const MeasuredRow& row);
    void drawSwatch(const MeasuredRow& row, qreal x);
    /// Cuts a row that is higher than a page.
    [[nodiscard]] QList<MeasuredRow> pieces(const MeasuredRow& row) const;

    RecordPaper& m_paper;
    QList<PaperColumn> m_columns;
    qreal m_shares = 0.0;
    MeasuredRow m_heading;
    QList<MeasuredRow> m_rows;
};

/// Draws the colour and mark of a day in an area of any size.
void drawRecordSwatch(QPainter& painter, const QRectF& area, const Day& day, bool isDayOff);
