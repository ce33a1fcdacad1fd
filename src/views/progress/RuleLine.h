// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "RuleProgress.h"
#include "SpokenGroup.h"

#include <QStringList>

/// How far a rule is met: its name and the days, a slim bar, and what is left. It only displays: all of it is given to
/// it.
class RuleLine : public SpokenGroup {
    Q_OBJECT

public:
    struct Contents {
        QString name;
        /// Beside the name; may be empty.
        QString count;
        QString outlook;
        RuleProgress::Verdict verdict = RuleProgress::Verdict::Open;
        /// Fractions of the bar, 0 to 1, the second with the planned days.
        double progress = 0.0;
        double prediction = 0.0;

        bool operator==(const Contents&) const = default;
    };

    /// What a line shows of the progress of a rule.
    [[nodiscard]] static Contents contentsOf(const AttendanceRule& rule, const RuleProgress& progress, QDate today);

    explicit RuleLine(QWidget* parent = nullptr);

    void setContents(const Contents& contents);
    [[nodiscard]] const Contents& contents() const { return m_contents; }

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void layOut();
    [[nodiscard]] int symbolSize() const;
    void paintTexts(QPainter& painter) const;
    void paintBar(QPainter& painter) const;
    [[nodiscard]] QRect barRect() const;

    Contents m_contents;
    /// The name and the width that the elided one is made for.
    std::pair<QString, int> m_fitted;
    QString m_elidedName;
    QStringList m_outlookLines;
};
