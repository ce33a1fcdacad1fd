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

#include <QEvent>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int columnWidth = 375;
constexpr int textInset = static_cast<int>(ProgressBarGeometry::captionOverhang);

QString captionOf(const ValuedGoal& goal)
{
    return goal.goal->desc.value().isEmpty() ? goalValueText(goal.value) : goal.goal->desc;
}

} // namespace

ProgressWidgetView::ProgressWidgetView(const AppSettings& settings, const ViewSettings& viewSettings, PeriodWord period,
                                       QWidget* parent)
    : QWidget(parent)
    , m_settings(settings)
    , m_viewSettings(viewSettings)
    , m_period(period)
    , m_headline(new MarkedTextLabel)
    , m_goal(new MarkedTextLabel)
    , m_bar(new MarkedProgressBar)
{
    m_headline->setObjectName("headline"_L1);
    m_headline->setFont(fonts::headline(font()));
    m_headline->setContentsMargins({});
    m_goal->setObjectName("goal"_L1);
    m_goal->setFont(fonts::body(font()));
    m_goal->setPlainRole(QPalette::PlaceholderText);

    auto* texts = new QVBoxLayout;
    texts->setContentsMargins(textInset, 0, textInset, 4);
    texts->setSpacing(4);
    texts->addWidget(m_headline);
    texts->addWidget(m_goal);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->addLayout(texts);
    column->addWidget(m_bar);
    setFixedWidth(columnWidth + 2 * textInset);
    onChange(m_contents, this, [this] { refresh(); });
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
    QWidget::changeEvent(event);
}

ProgressWidgetView::Contents ProgressWidgetView::contents() const
{
    QList<const Month*> months;
    for (const auto& month : m_months)
        months.append(month.get());
    const AttendanceStatistics statistics =
        attendanceStatistics(months, m_settings.daysPerWeekGoals, m_settings.vacationDaysCountAsInOffice,
                             m_viewSettings.showWillBeInOfficeStats);
    const BarFractions fractions = barFractions(statistics);
    const Theme& theme = themeFor(palette());

    MarkedProgressBar::Contents bar{.progress = fractions.progress,
                                    .progressPrediction = fractions.prediction,
                                    .label = shownAverage(statistics),
                                    .markers = {},
                                    .progressColor = theme.progress,
                                    .progressPredictionColor = theme.prediction,
                                    .backgroundColor = theme.progressTrack,
                                    .reachedMarkerColor = theme.progressText,
                                    .predictedMarkerColor = theme.predictionText,
                                    .markerColor = theme.dimText,
                                    .markerFont = fonts::subheadline(font())};
    for (qsizetype i = 0; i < fractions.markers.size(); ++i)
        bar.markers.append({fractions.markers.at(i), captionOf(statistics.validGoals.at(i))});
    return {headlineText(statistics.inOffice, m_period), goalText(statistics), bar, m_viewSettings.showProgressBars};
}

void ProgressWidgetView::refresh()
{
    const Contents& shown = m_contents.value();
    m_headline->setMarkedText(shown.headline);
    m_goal->setMarkedText(shown.goal);
    m_goal->setVisible(!shown.goal.isEmpty());
    m_bar->setContents(shown.bar);
    m_bar->setVisible(shown.hasBar);
}
