// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Counting.h"
#include "MarkedProgressBar.h"
#include "SpokenGroup.h"
#include "StatisticsTexts.h"

#include <QProperty>

#include <memory>

class AppSettings;
class MarkedTextLabel;
class Month;
class ViewSettings;

/// The progress tracker: the office days of a period against the goals, in words and on a bar. It follows every record
/// and setting that it shows.
class ProgressWidgetView : public SpokenGroup {
    Q_OBJECT

public:
    /// `counting` outlives the view. Without it every day counts as its state says.
    ProgressWidgetView(const AppSettings& settings, const ViewSettings& viewSettings, PeriodWord period,
                       const QProperty<Counting>* counting = nullptr, QWidget* parent = nullptr);

    /// The width of texts and bar.
    [[nodiscard]] static int columnWidth(const QFont& font);

    void setMonths(const QList<std::shared_ptr<Month>>& months);
    /// Lets a person press the line of the goal, while there is one. To be called before setMonths().
    void setGoalPressable() { m_isGoalPressable = true; }

protected:
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    struct Contents {
        MarkedText headline;
        MarkedText goal;
        MarkedProgressBar::Contents bar;
        bool hasBar = false;
    };

    [[nodiscard]] Contents contents() const;
    void refresh();
    void speak(const Contents& shown);

    const AppSettings& m_settings;
    const ViewSettings& m_viewSettings;
    PeriodWord m_period;
    bool m_isGoalPressable = false;
    const QProperty<Counting>* m_counting;
    QList<std::shared_ptr<Month>> m_months;
    MarkedTextLabel* m_headline;
    MarkedTextLabel* m_goal;
    MarkedProgressBar* m_bar;
    /// Bound to everything that contents() reads.
    QProperty<Contents> m_contents;
};
