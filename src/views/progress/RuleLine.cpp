// SPDX-License-Identifier: GPL-3.0-or-later
#include "RuleLine.h"

#include "ElidedLines.h"
#include "Fonts.h"
#include "Labels.h"
#include "Outline.h"
#include "ProgressWidgetView.h"
#include "RuleTexts.h"
#include "Symbol.h"
#include "Theme.h"

#include <QEvent>
#include <QPainter>
#include <QStyle>

#include <algorithm>
#include <utility>

namespace {

constexpr int usualRuleBarHeight = 6;
constexpr int usualRuleSymbolSize = 15;
constexpr int symbolGap = 6;
constexpr int countGap = 12;
constexpr int ruleBarGap = 4;
constexpr int outlookLineCount = 2;

Symbol symbolOf(RuleProgress::Verdict verdict)
{
    switch (verdict) {
    case RuleProgress::Verdict::Kept:
        return Symbol::Check;
    case RuleProgress::Verdict::KeptWithPlanned:
        return Symbol::Calendar;
    case RuleProgress::Verdict::Open:
        return Symbol::Circle;
    case RuleProgress::Verdict::Broken:
        return Symbol::Cross;
    }
    Q_UNREACHABLE();
}

QColor colorOf(RuleProgress::Verdict verdict, const Theme& theme)
{
    switch (verdict) {
    case RuleProgress::Verdict::Kept:
        return theme.progressText;
    case RuleProgress::Verdict::KeptWithPlanned:
        return theme.predictionText;
    case RuleProgress::Verdict::Open:
        return theme.dimText;
    case RuleProgress::Verdict::Broken:
        return theme.errorText;
    }
    Q_UNREACHABLE();
}

// Stripes, so that planned days differ from others by more than colour.
void paintStripes(QPainter& painter, const QRectF& area, const Theme& theme)
{
    painter.setPen(QPen(theme.card, 1.5));
    const qreal pitch = area.height();
    for (qreal x = area.left(); x + pitch <= area.right(); x += pitch)
        painter.drawLine(QPointF(x, area.bottom()), QPointF(x + pitch, area.top()));
}

} // namespace

RuleLine::Contents RuleLine::contentsOf(const AttendanceRule& rule, const RuleProgress& progress, QDate today)
{
    const auto fraction = [&progress](qint64 days) {
        const auto wanted = static_cast<double>(progress.wanted);
        return wanted > 0.0 ? std::clamp(static_cast<double>(days) / wanted, 0.0, 1.0) : 0.0;
    };
    const bool isEmpty = progress.hasNoWorkdays();
    const bool isDone =
        !isEmpty && progress.wanted == 0 && (rule.bound == AttendanceRule::Bound::AtLeast || progress.counted > 0);
    return {.name = rule.name,
            .count = ruleCountText(rule, progress),
            .outlook = ruleOutlookText(rule, progress, today),
            .verdict = isEmpty ? RuleProgress::Verdict::Open : progress.verdict,
            .progress = isDone ? 1.0 : fraction(progress.counted),
            .prediction = fraction(progress.counted + progress.planned)};
}

RuleLine::RuleLine(QWidget* parent)
    : SpokenGroup(0, parent)
{
    setFont(fonts::body(font()));
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void RuleLine::setContents(const Contents& contents)
{
    if (contents == m_contents)
        return;
    m_contents = contents;
    QStringList texts{contents.count, contents.outlook};
    texts.removeAll(QString());
    setSpokenText(contents.name, texts);
    layOut();
}

QSize RuleLine::sizeHint() const
{
    const int outlook = static_cast<int>(m_outlookLines.size()) * fontMetrics().lineSpacing();
    return {ProgressWidgetView::columnWidth(QFont()) + 2 * ringRoom,
            barRect().bottom() + 1 + ruleBarGap + outlook + ringRoom};
}

void RuleLine::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::FontChange) {
        m_fitted = {};
        layOut();
        updateGeometry();
    }
    SpokenGroup::changeEvent(event);
}

int RuleLine::symbolSize() const
{
    return fonts::grown(usualRuleSymbolSize, font());
}

QRect RuleLine::barRect() const
{
    const int top = ringRoom + fontMetrics().height() + ruleBarGap;
    return {ringRoom, top, width() - 2 * ringRoom, fonts::grown(usualRuleBarHeight, font())};
}

void RuleLine::layOut()
{
    const qsizetype lines = m_outlookLines.size();
    const int column = sizeHint().width() - 2 * ringRoom;
    const int beside = symbolSize() + symbolGap + fontMetrics().horizontalAdvance(m_contents.count) + countGap;
    if (const std::pair fitted(m_contents.name, column - beside); fitted != std::exchange(m_fitted, fitted))
        m_elidedName = fontMetrics().elidedText(fitted.first, Qt::ElideRight, fitted.second);
    m_outlookLines = elidedLines(m_contents.outlook, font(), column, outlookLineCount);
    setToolTip(m_elidedName == m_contents.name ? QString() : labels::help(m_contents.name));
    if (m_outlookLines.size() != lines)
        updateGeometry(); // only then, because the whole page is laid out again
    update();
}

void RuleLine::paintEvent(QPaintEvent* event)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setLayoutDirection(Qt::LayoutDirectionAuto); // a name may be in another language
    paintGround(painter);
    paintTexts(painter);
    paintBar(painter);
    painter.end();
    SpokenGroup::paintEvent(event);
}

void RuleLine::paintTexts(QPainter& painter) const
{
    const Theme& theme = themeFor(palette());
    const QRect column = rect().adjusted(ringRoom, ringRoom, -ringRoom, -ringRoom);
    const QRect first(column.left(), column.top(), column.width(), fontMetrics().height());
    // Text that is laid out in a rectangle takes several times as long, and a month is to turn at once.
    const auto draw = [&](const QRect& room, Qt::Alignment side, const QString& words) {
        const bool isAtRight = QStyle::visualAlignment(layoutDirection(), side).testFlag(Qt::AlignRight);
        const int left = isAtRight ? room.right() + 1 - fontMetrics().horizontalAdvance(words) : room.left();
        painter.drawText(QPoint(left, room.top() + fontMetrics().ascent()), words);
    };
    const QSize symbol(symbolSize(), symbolSize());
    drawSymbol(painter, QStyle::alignedRect(layoutDirection(), Qt::AlignLeft | Qt::AlignVCenter, symbol, first),
               symbolOf(m_contents.verdict), colorOf(m_contents.verdict, theme));
    painter.setPen(theme.text);
    const QRect name = first.adjusted(symbolSize() + symbolGap, 0, 0, 0);
    draw(QStyle::visualRect(layoutDirection(), first, name), Qt::AlignLeft, m_elidedName);
    draw(first, Qt::AlignRight, m_contents.count);
    painter.setPen(theme.dimText);
    QRect line = first.translated(0, barRect().bottom() + 1 + ruleBarGap - first.top());
    for (const QString& words : m_outlookLines) {
        draw(line, Qt::AlignLeft, words);
        line.translate(0, fontMetrics().lineSpacing());
    }
}

void RuleLine::paintBar(QPainter& painter) const
{
    const Theme& theme = themeFor(palette());
    const QRectF bar = barRect();
    const qreal radius = bar.height() / 2;
    const auto part = [&](double from, double to) {
        const QRectF ahead(bar.left() + from * bar.width(), bar.top(), (to - from) * bar.width(), bar.height());
        return isLeftToRight() ? ahead : ahead.translated(bar.left() + bar.right() - ahead.left() - ahead.right(), 0);
    };
    // One above the other, because to clip them by the shape of the bar would take longer than all else.
    const auto fill = [&](double to, const QColor& color) {
        QRectF filled = part(0.0, to);
        if (filled.width() < 2 * radius)
            filled = part(0.0, 2 * radius / bar.width());
        painter.setPen(Qt::NoPen);
        painter.setBrush(color);
        painter.drawRoundedRect(filled, radius, radius);
    };
    fill(1.0, theme.progressTrack);
    if (m_contents.prediction > m_contents.progress) {
        fill(m_contents.prediction, theme.prediction);
        paintStripes(painter, part(m_contents.progress, m_contents.prediction).adjusted(radius, 0, -radius, 0), theme);
    }
    const bool isBroken = m_contents.verdict == RuleProgress::Verdict::Broken;
    if (m_contents.progress > 0)
        fill(m_contents.progress, isBroken ? theme.outOfOffice : theme.progress);
    drawOutline(painter, bar, radius, theme);
}
