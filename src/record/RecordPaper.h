// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFont>
#include <QFontMetricsF>
#include <QList>
#include <QRectF>
#include <QString>

class QPainter;
class QPdfWriter;

enum class RecordType { Text, Strong, Small, Heading, Title };

/// The pages of a record while they are filled from top to bottom. It takes the pages twice: first it only counts them,
/// then it draws, so that each page says how many there are. Lengths are in the units of the device.
class RecordPaper {
public:
    /// `title` is at the head of every page but the first, `foot` at the foot of all.
    RecordPaper(QPdfWriter& writer, const QString& title, const QString& foot);

    /// Begins the second time.
    void startDrawing(QPainter& painter);
    /// Null while pages are counted.
    [[nodiscard]] QPainter* painter() const { return m_painter; }

    [[nodiscard]] qreal mm(qreal length) const;
    [[nodiscard]] qreal width() const { return m_area.width(); }
    [[nodiscard]] qreal left() const { return m_area.left(); }
    /// Of a page that is empty.
    [[nodiscard]] qreal wholeHeight() const { return m_area.height(); }
    [[nodiscard]] qreal heightLeft() const { return m_area.bottom() - m_y; }
    /// Where the next line goes.
    [[nodiscard]] qreal y() const { return m_y; }
    void skip(qreal height) { m_y += height; }
    /// Begins a new page unless so much fits below what is there.
    void require(qreal height);

    [[nodiscard]] const QFont& font(RecordType type) const;
    [[nodiscard]] qreal lineHeight(RecordType type) const;
    /// The lines of a text that are no wider than `width`.
    [[nodiscard]] QStringList linesOf(const QString& text, RecordType type, qreal width) const;
    /// Draws one line of text. The rectangle's height does not matter.
    void drawLine(const QRectF& area, const QString& line, RecordType type, Qt::Alignment alignment = Qt::AlignLeft);
    /// Adds a text below what is there, over several pages if it must be.
    void addText(const QString& text, RecordType type = RecordType::Text);
    /// Adds a heading, on the page on which so much fits below it.
    void addHeading(const QString& text, qreal below);

private:
    void beginPage();
    void drawHeadAndFoot();
    [[nodiscard]] const QFontMetricsF& metrics(RecordType type) const;

    QPdfWriter& m_writer;
    QPainter* m_painter = nullptr;
    const QString m_title;
    const QString m_foot;
    QRectF m_area;
    qreal m_y = 0.0;
    int m_page = 0;
    int m_pageCount = 0;
    QList<QFont> m_fonts;
    QList<QFontMetricsF> m_metrics;
};
