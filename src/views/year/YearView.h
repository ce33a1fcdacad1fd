// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "CalendarPage.h"

class Card;
class Month;
class QGridLayout;
class QLabel;
class RuleLines;
class YearFigures;
class YearMonths;

/// The months of a year, the figures of its quarters, and the rules; at first of today's year. To look at it stores
/// nothing. While it is hidden, nothing is read or counted.
class YearView final : public CalendarPage {
    Q_OBJECT

public:
    explicit YearView(const CalendarParts& parts, QWidget* parent = nullptr);

    [[nodiscard]] DaySpan span() const override;
    /// None: the months have the focus, not their days.
    [[nodiscard]] QDate focusedDate() const override { return {}; }
    /// The width that it needs, even while it is wider, so that the window can be made narrower again.
    [[nodiscard]] QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// A month was clicked, or chosen by key.
    void monthOpened(const YearMonth& month, Qt::FocusReason reason);

protected:
    void load() override;
    [[nodiscard]] QString title() const override;
    [[nodiscard]] std::optional<YearMonth> monthBefore() const override;
    [[nodiscard]] std::optional<YearMonth> monthAfter() const override;
    void focusDay(QDate date, Qt::FocusReason reason) override;
    void focusCurrent(Qt::FocusReason reason) override;
    void hideEvent(QHideEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void addMonths();
    void addFigures();
    void followChanges();
    void refresh();
    void showMonths(const QList<const Month*>& months);
    void showFigures(const QList<const Month*>& months);
    void showRules(const DaySpan& days);

    Card* m_monthsCard;
    QLabel* m_title;
    YearMonths* m_months;
    Card* m_figuresCard;
    YearFigures* m_figures;
    RuleLines* m_rules;
    DaySpan m_ruleDays;
    /// Whether something has changed since the year was read.
    bool m_isStale = false;
};
