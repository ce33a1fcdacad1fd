// SPDX-License-Identifier: GPL-3.0-or-later
#include "WeekLabel.h"

#include "Accessibility.h"
#include "Fonts.h"
#include "Labels.h"
#include "SymbolLabel.h"
#include "Theme.h"

#include <QPainter>
#include <QStyle>

namespace {

constexpr int distanceFromDays = 4;

QString plainText(int number, qint64 officeDays)
{
    return WeekLabel::tr("%1 · %2", "number of a week, and its days in the office").arg(number).arg(officeDays);
}

QString ruleText(qint64 counted, qint64 wanted)
{
    return WeekLabel::tr("%1 of %2", "days in the office, and those that are needed").arg(counted).arg(wanted);
}

QString spokenText(const WeekFigures& week)
{
    const auto count = static_cast<int>(week.officeDays);
    QString days =
        (count == 1 ? WeekLabel::tr("Week %1: 1 office day") : WeekLabel::tr("Week %1: %n office days", nullptr, count))
            .arg(week.number);
    if (!week.rule)
        return days;
    const QString rule = WeekLabel::tr("%1. %2: %3", "week, name of a rule, and how it is met")
                             .arg(days, week.rule->name, ruleText(week.rule->counted, week.rule->wanted));
    return week.rule->isReached ? WeekLabel::tr("%1, reached", "a rule").arg(rule) : rule;
}

} // namespace

WeekLabel::WeekLabel(QWidget* parent)
    : QWidget(parent)
{
    setAccessibleRole(*this, QAccessible::StaticText);
    setFont(fonts::caption(font()));
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Ignored);
    QSizePolicy policy = sizePolicy();
    policy.setRetainSizeWhenHidden(true); // or the days would move when a month has fewer weeks
    setSizePolicy(policy);
}

void WeekLabel::setFigures(const WeekFigures& figures)
{
    if (m_figures == figures)
        return;
    m_figures = figures;
    const QString spoken = spokenText(figures);
    setAccessibleName(spoken);
    setToolTip(labels::help(spoken));
    update();
}

QSize WeekLabel::sizeHint() const
{
    const QFontMetrics metrics = fontMetrics();
    constexpr int widest = 53;
    constexpr int mostDays = 7;
    const int plain = metrics.horizontalAdvance(plainText(widest, mostDays));
    const int rule = metrics.horizontalAdvance(ruleText(mostDays, mostDays));
    return {distanceFromDays + qMax(plain, rule), 2 * metrics.height()};
}

int WeekLabel::tickSize() const
{
    return fontMetrics().ascent();
}

void WeekLabel::paintEvent(QPaintEvent* /*event*/)
{
    const Theme& theme = themeFor(palette());
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(theme.dimText);
    painter.setLayoutDirection(Qt::LayoutDirectionAuto); // that of the text, which begins with a number
    const QRect whole = QStyle::visualRect(layoutDirection(), rect(), rect().adjusted(distanceFromDays, 0, 0, 0));
    if (!m_figures.rule) {
        painter.drawText(whole, Qt::AlignCenter, plainText(m_figures.number, m_figures.officeDays));
        return;
    }
    QRect line = whole;
    line.setHeight(fontMetrics().height());
    line.moveTop(whole.center().y() + 1 - line.height());
    const SymbolLabel number{QString::number(m_figures.number),
                             m_figures.rule->isReached ? std::optional(Symbol::Tick) : std::nullopt, tickSize()};
    number.paint(painter, line, layoutDirection());
    painter.drawText(line.translated(0, line.height()), Qt::AlignCenter,
                     ruleText(m_figures.rule->counted, m_figures.rule->wanted));
}
