// SPDX-License-Identifier: GPL-3.0-or-later
#include "RecordPdf.h"

#include "RecordMonth.h"
#include "RecordPaper.h"
#include "RecordSummary.h"
#include "RecordTexts.h"

#include <QCoreApplication>
#include <QLocale>
#include <QPainter>
#include <QPdfWriter>

namespace {

struct RecordPdf {
    Q_DECLARE_TR_FUNCTIONS(RecordPdf)
};

constexpr int dotsPerInch = 600;
constexpr QMarginsF paperMargins(15, 14, 15, 12);

QString titleOf(const RecordContents& contents)
{
    return RecordPdf::tr("Office Days, %1", "period").arg(record_texts::period(contents.period));
}

QString madeText(const RecordContents& contents)
{
    return RecordPdf::tr("Made with Pellory on %1, %2", "date, time")
        .arg(record_texts::date(contents.made.date()), QLocale().toString(contents.made.time(), QLocale::ShortFormat));
}

void addSignature(RecordPaper& paper)
{
    constexpr qreal height = 24.0;
    constexpr qreal lineWidth = 80.0;
    paper.require(paper.mm(height));
    paper.skip(paper.mm(height) - paper.lineHeight(RecordType::Small) - paper.mm(1));
    if (QPainter* painter = paper.painter()) {
        painter->setPen({Qt::black, paper.mm(0.2)});
        painter->drawLine(QPointF(paper.left(), paper.y()), QPointF(paper.left() + paper.mm(lineWidth), paper.y()));
    }
    paper.skip(paper.mm(1));
    paper.addText(RecordPdf::tr("Date, signature"), RecordType::Small);
}

/// Fills the pages. `begun` and `ended` are the per cent that are done before and after.
bool fillPages(RecordPaper& paper, const RecordContents& contents, const RecordForm& form, int begun, int ended,
               const RecordProgress& progress)
{
    paper.addText(RecordPdf::tr("Office Days"), RecordType::Title);
    paper.addText(record_texts::period(contents.period), RecordType::Heading);
    addRecordSummary(paper, contents);
    const auto count = contents.months.size();
    for (qsizetype i = 0; i < count; ++i) {
        if (!progress(begun + static_cast<int>((ended - begun) * i / count)))
            return false;
        addRecordMonth(paper, contents, form, contents.months.at(i));
    }
    if (form.hasSignature)
        addSignature(paper);
    return progress(ended);
}

} // namespace

bool writeRecordPdf(const RecordContents& contents, const RecordForm& form, QIODevice& device,
                    const RecordProgress& progress)
{
    // Drawing takes longer than counting the pages.
    constexpr int counted = 40;
    constexpr int all = 100;
    QPdfWriter writer(&device);
    writer.setTitle(titleOf(contents));
    writer.setCreator(QStringLiteral("Pellory"));
    writer.setResolution(dotsPerInch);
    writer.setPageLayout({QPageSize(form.paper), QPageLayout::Portrait, paperMargins, QPageLayout::Millimeter});
    RecordPaper paper(writer, titleOf(contents), madeText(contents));
    if (!fillPages(paper, contents, form, 0, counted, progress))
        return false;
    QPainter painter(&writer);
    if (!painter.isActive())
        return false;
    paper.startDrawing(painter);
    return fillPages(paper, contents, form, counted, all, progress);
}
