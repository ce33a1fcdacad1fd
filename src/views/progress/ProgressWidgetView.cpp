// SPDX-License-Identifier: GPL-3.0-or-later
#include "ProgressWidgetView.h"

#include "AppSettings.h"
#include "AttendanceStatistics.h"
#include "Follow.h"
#include "Fonts.h"
#include "MarkedTextLabel.h"
#include "Month.h"
#include "Theme.h"
#include "ViewSettings.h"
#include "WindowSize.h"

#include <QEvent>
#include <QPainter>
#include <QVBoxLayout>

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

// In the usual font, with which they grow.
constexpr int usualColumnWidth = 375;
constexpr int usualRoomForCaptions = 20;
constexpr int usualBarHeight = 24;
constexpr int usualLineHeight = 9;
constexpr int usualLineWidth = 2;
constexpr int linesOfGoal = 2;
constexpr int cardEdge = 8;
// More digits than the days of a quarter have.
constexpr qint64 widestDays = 88;

std::optional<double> predictedAverage(const AttendanceStatistics& statistics)
{
    const double prediction = statistics.prediction;
    return std::isfinite(prediction) && prediction > statistics.average ? std::optional(prediction) : std::nullopt;
}

QString captionOf(const ValuedGoal& goal)
{
    return goal.goal->desc.value().isEmpty() ? goalValueText(goal.value) : goal.goal->desc;
}

} // namespace

ProgressWidgetView::ProgressWidgetView(const AppSettings& settings, const ViewSettings& viewSettings, PeriodWord period,
                                       const QProperty<Counting>* counting, QWidget* parent)
    : SpokenGroup(cardEdge, parent)
    , m_settings(settings)
    , m_viewSettings(viewSettings)
    , m_period(period)
    , m_counting(counting)
    , m_headline(new MarkedTextLabel)
    , m_goal(new MarkedTextLabel)
    , m_bar(new MarkedProgressBar)
{
    m_headline->setObjectName("headline"_L1);
    m_headline->setFont(fonts::headline(font()));
    m_goal->setObjectName("goal"_L1);
    m_goal->setFont(fonts::body(font()));
    m_goal->setPlainRole(QPalette::PlaceholderText);

    // The height is the same whatever the texts are, so that nothing below moves when they change.
    const int width = columnWidth(font());
    m_headline->setFixedWidth(width);
    m_headline->setLineCount(m_headline->linesFor(headlineText(widestDays, period), width));
    m_goal->setFixedWidth(width);
    m_goal->setLineCount(linesOfGoal);
    QSizePolicy policy = m_goal->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    m_goal->setSizePolicy(policy);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, ringRoom, 0, ringRoom);
    column->setSpacing(4);
    column->addWidget(m_headline, 0, Qt::AlignHCenter);
    column->addWidget(m_goal, 0, Qt::AlignHCenter);
    column->addWidget(m_bar);
    onChange(m_contents, this, [this] { refresh(); });
}

int ProgressWidgetView::columnWidth(const QFont& font)
{
    return qMin(fonts::grown(usualColumnWidth, font), widestContents() - fonts::grown(usualRoomForCaptions, font));
}

void ProgressWidgetView::setMonths(const QList<std::shared_ptr<Month>>& months)
{
    m_months = months;
    m_contents.setBinding([this] { return contents(); });
}

void ProgressWidgetView::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::PaletteChange && !m_months.isEmpty())
        setMonths(m_months);
    SpokenGroup::changeEvent(event);
}

void ProgressWidgetView::paintEvent(QPaintEvent* event)
{
    QPainter painter(this);
    paintGround(painter);
    painter.end();
    SpokenGroup::paintEvent(event);
}

ProgressWidgetView::Contents ProgressWidgetView::contents() const
{
    QList<const Month*> months;
    for (const auto& month : m_months)
        months.append(month.get());
    const AttendanceStatistics statistics = attendanceStatistics(
        months, m_settings.daysPerWeekGoals, m_settings.vacationDaysCountAsInOffice,
        m_viewSettings.showWillBeInOfficeStats, m_counting != nullptr ? m_counting->value() : Counting());
    const BarFractions fractions = barFractions(statistics);
    const Theme& theme = themeFor(palette());

    MarkedProgressBar::Contents bar{.progress = fractions.progress,
                                    .progressPrediction = fractions.prediction,
                                    .label = shownAverage(statistics),
                                    .predictedLabel = predictedAverage(statistics),
                                    .markers = {},
                                    .barHeight = static_cast<qreal>(fonts::grown(usualBarHeight, font())),
                                    .progressColor = theme.progress,
                                    .progressPredictionColor = theme.prediction,
                                    .backgroundColor = theme.progressTrack,
                                    .reachedMarkerColor = theme.progressText,
                                    .predictedMarkerColor = theme.predictionText,
                                    .markerColor = theme.dimText,
                                    .markerLineWidth = static_cast<qreal>(fonts::grown(usualLineWidth, font())),
                                    .markerLineHeight = static_cast<qreal>(fonts::grown(usualLineHeight, font())),
                                    .markerFont = fonts::body(font()),
                                    .barWidth = columnWidth(font())};
    for (qsizetype i = 0; i < fractions.markers.size(); ++i) {
        const ValuedGoal& goal = statistics.validGoals.at(i);
        bar.markers.append({fractions.markers.at(i), captionOf(goal), goal.goal == statistics.targetGoal->goal});
    }
    return {headlineText(statistics.inOffice, m_period), goalText(statistics), bar, m_viewSettings.showProgressBars};
}

void ProgressWidgetView::refresh()
{
    const Contents& shown = m_contents.value();
    m_headline->setMarkedText(shown.headline);
    m_goal->setMarkedText(shown.goal);
    m_goal->setVisible(!shown.goal.isEmpty());
    setPressable(m_isGoalPressable && !shown.goal.isEmpty() ? m_goal : nullptr);
    m_bar->setContents(shown.bar);
    m_bar->setVisible(shown.hasBar);
    speak(shown);
}

void ProgressWidgetView::speak(const Contents& shown)
{
    QStringList texts{toPlainText(shown.headline)};
    if (!shown.goal.isEmpty())
        texts.append(toPlainText(shown.goal));
    if (shown.hasBar)
        texts.append(m_bar->accessibleName());
    setSpokenText(m_period == PeriodWord::Quarter ? tr("Progress of the quarter")
                                                  : tr("Progress of %1", "month").arg(m_months.first()->name.value()),
                  texts);
}
