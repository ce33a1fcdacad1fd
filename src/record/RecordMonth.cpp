// SPDX-License-Identifier: GPL-3.0-or-later
#include "RecordMonth.h"

#include "Month.h"
#include "PaperTable.h"
#include "RecordFigures.h"
#include "RecordSummary.h"
#include "RecordTexts.h"

#include <QCoreApplication>
#include <QLocale>
#include <QPainter>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

struct RecordMonth {
    Q_DECLARE_TR_FUNCTIONS(RecordMonth)
};

constexpr int daysOfWeek = 7;
constexpr qreal gridCellHeight = 16.0;
constexpr qreal gridInset = 1.2;
constexpr QSizeF gridSwatch(4.8, 3.6);

/// A day with all that is said of it.
struct ToldDay {
    QDate date;
    /// `isWorkday` is what counts.
    Day day;
    DayRecord record;
};

QList<ToldDay> toldDays(const RecordContents& contents, const Month& month)
{
    QList<ToldDay> days;
    for (Day day : month.days.value()) {
        if (!day.isInMonth())
            continue;
        const QDate date = month.dateOf(day.id);
        if (contents.counting.isUsed())
            day.isWorkday = contents.counting.isWorkday(date);
        days.append({date, day, contents.recordOn(date)});
        days.last().record.state = day.state;
    }
    return days;
}

/// Nothing is said of a day without work that is not marked.
QString stateOf(const ToldDay& told, const RecordContents& contents)
{
    return told.day.state == DayState::UNKNOWN && !told.day.isWorkday
               ? QString()
               : record_texts::state(told.record, contents.kinds);
}

QString weekdayAndDay(QDate date)
{
    //: A short weekday and the day of the month, in the format of QLocale::toString().
    return QLocale().toString(date, RecordMonth::tr("ddd d"));
}

QList<PaperColumn> columnsFor(const RecordForm& form)
{
    QList<PaperColumn> columns{{RecordMonth::tr("Day"), 0.45}};
    if (form.days == RecordForm::Days::Lines)
        columns += {RecordMonth::tr("State"), 1.5};
    if (form.hasNotes)
        columns += {RecordMonth::tr("Note"), 1.7};
    if (form.hasChanges)
        columns += {RecordMonth::tr("Set"), 1.8};
    return columns;
}

PaperRow lineOf(const ToldDay& told, const RecordContents& contents, const RecordForm& form)
{
    PaperRow row{.cells = {weekdayAndDay(told.date)}, .isShaded = !told.day.isWorkday};
    if (form.days == RecordForm::Days::Lines) {
        QStringList words{stateOf(told, contents), record_texts::dayOff(told.record)};
        words.removeAll(QString());
        row.cells += words.join(u" · "_s);
        row.swatch = told.day;
        row.isDayOff = told.record.dayOff.has_value();
    }
    if (form.hasNotes)
        row.cells += told.record.note.trimmed();
    if (form.hasChanges)
        row.cells += record_texts::change(told.record);
    return row;
}

class MonthGrid {
public:
    MonthGrid(RecordPaper& paper, const RecordContents& contents, const QList<ToldDay>& days)
        : m_paper(paper)
        , m_contents(contents)
        , m_days(days)
    {
    }

    [[nodiscard]] qreal height() const { return headHeight() + rowCount() * m_paper.mm(gridCellHeight); }

    void draw()
    {
        if (m_paper.painter() != nullptr) {
            drawHead();
            for (const ToldDay& told : m_days)
                drawCell(told);
        }
        m_paper.skip(height());
    }

private:
    [[nodiscard]] qreal headHeight() const { return m_paper.lineHeight(RecordType::Small) + m_paper.mm(0.5); }
    [[nodiscard]] qreal columnWidth() const { return m_paper.width() / daysOfWeek; }
    [[nodiscard]] int column(QDate date) const
    {
        return (date.dayOfWeek() - m_contents.weekStart + daysOfWeek) % daysOfWeek;
    }
    [[nodiscard]] int row(QDate date) const
    {
        const QDate first = m_days.first().date;
        return static_cast<int>(first.daysTo(date) + column(first)) / daysOfWeek;
    }
    [[nodiscard]] int rowCount() const { return row(m_days.last().date) + 1; }

    void drawHead()
    {
        for (int i = 0; i < daysOfWeek; ++i) {
            const int weekday = (m_contents.weekStart - 1 + i) % daysOfWeek + 1;
            m_paper.drawLine({m_paper.left() + i * columnWidth(), m_paper.y(), columnWidth(), 0},
                             QLocale().standaloneDayName(weekday, QLocale::ShortFormat), RecordType::Small,
                             Qt::AlignHCenter);
        }
    }

    void drawCell(const ToldDay& told)
    {
        QPainter& painter = *m_paper.painter();
        const QRectF cell(m_paper.left() + column(told.date) * columnWidth(),
                          m_paper.y() + headHeight() + row(told.date) * m_paper.mm(gridCellHeight), columnWidth(),
                          m_paper.mm(gridCellHeight));
        painter.setPen({Qt::gray, m_paper.mm(0.15)});
        painter.setBrush(told.day.isWorkday ? QColor(Qt::white) : QColor(236, 236, 236));
        painter.drawRect(cell);
        painter.setPen(Qt::black);
        const qreal inset = m_paper.mm(gridInset);
        const QRectF inner = cell.adjusted(inset, inset, -inset, -inset);
        m_paper.drawLine(inner, QString::number(told.day.id), RecordType::Strong);
        if (told.day.state != DayState::UNKNOWN) {
            const QSizeF size(m_paper.mm(gridSwatch.width()), m_paper.mm(gridSwatch.height()));
            drawRecordSwatch(painter, {{inner.right() - size.width(), inner.top()}, size}, told.day,
                             told.record.dayOff.has_value());
        }
        drawWords(inner, told);
    }

    void drawWords(const QRectF& inner, const ToldDay& told)
    {
        const qreal lineHeight = m_paper.lineHeight(RecordType::Small);
        QRectF area = inner.translated(0, m_paper.lineHeight(RecordType::Strong) + m_paper.mm(0.9));
        QStringList lines = m_paper.linesOf(stateOf(told, m_contents), RecordType::Small, inner.width());
        lines += m_paper.linesOf(record_texts::dayOff(told.record), RecordType::Small, inner.width());
        for (const QString& line : lines) {
            if (area.top() + lineHeight > inner.bottom() + m_paper.mm(gridInset))
                return;
            m_paper.drawLine(area, line, RecordType::Small);
            area.translate(0, lineHeight);
        }
    }

    RecordPaper& m_paper;
    const RecordContents& m_contents;
    const QList<ToldDay>& m_days;
};

bool hasMore(const PaperRow& row)
{
    return std::any_of(row.cells.begin() + 1, row.cells.end(), [](const QString& text) { return !text.isEmpty(); });
}

} // namespace

void addRecordMonth(RecordPaper& paper, const RecordContents& contents, const RecordForm& form,
                    const std::shared_ptr<const Month>& month)
{
    const auto days = toldDays(contents, *month);
    if (days.isEmpty())
        return;
    const bool isGrid = form.days == RecordForm::Days::Grid;
    PaperTable table(paper, columnsFor(form));
    for (const ToldDay& told : days) {
        PaperRow row = lineOf(told, contents, form);
        if (!isGrid || hasMore(row)) {
            row.isShaded = row.isShaded && !isGrid;
            table.add(row);
        }
    }
    const RecordTotal total = totalOfMonth(contents, month);
    MonthGrid grid(paper, contents, days);
    const qreal below = paper.lineHeight(RecordType::Text) + paper.mm(1.5);
    const qreal whole = (isGrid ? grid.height() : table.height()) + below;
    // A month that does not fit on a page begins where there is room for some of it.
    const qreal least = isGrid ? whole : table.leastHeight();
    paper.addHeading(record_texts::period(total.span), whole < paper.wholeHeight() - paper.mm(15) ? whole : least);
    if (isGrid)
        grid.draw();
    else
        table.draw();
    paper.skip(paper.mm(1.5));
    paper.addText(recordTotalText(total), RecordType::Strong);
    if (isGrid && table.height() > table.leastHeight()) {
        paper.skip(paper.mm(1.5));
        table.draw();
    }
}
