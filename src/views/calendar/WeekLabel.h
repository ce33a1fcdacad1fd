// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

#include <optional>

/// What a calendar shows of a week.
struct WeekFigures {
    /// How a week meets a weekly rule.
    struct Rule {
        QString name;
        qint64 counted = 0;
        qint64 wanted = 0;
        bool isReached = false;

        bool operator==(const Rule&) const = default;
    };

    /// As ISO 8601 counts weeks.
    int number = 0;
    qint64 officeDays = 0;
    std::optional<Rule> rule = {};

    bool operator==(const WeekFigures&) const = default;
};

/// The number of a week beside its row of days, and its days in the office. It is as wide for all weeks.
class WeekLabel : public QWidget {
    Q_OBJECT

public:
    explicit WeekLabel(QWidget* parent = nullptr);

    void setFigures(const WeekFigures& figures);

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    [[nodiscard]] int tickSize() const;

    WeekFigures m_figures;
};
