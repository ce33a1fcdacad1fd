// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "AttendanceRule.h"

#include <QStackedWidget>

class AppSettings;
class Clock;
class CountingRecords;
class ModelContext;
class RulesView;
class ViewSettings;
struct RulePreset;

/// The page of the settings about what is to be reached: the goals and the rules, or the editor of a rule.
class GoalsPage : public QStackedWidget {
    Q_OBJECT

public:
    GoalsPage(AppSettings& settings, CountingRecords& counting, ModelContext& context, const Clock& clock,
              const ViewSettings& viewSettings, QWidget* parent = nullptr);

private:
    void showEditor(const RulePreset& start);
    void showLists(const QUuid& edited);
    [[nodiscard]] QString meaningOf(const AttendanceRule& rule) const;

    AppSettings& m_settings;
    CountingRecords& m_counting;
    ModelContext& m_context;
    const Clock& m_clock;
    const ViewSettings& m_viewSettings;
    RulesView* m_rules;
    QWidget* m_editor = nullptr;
};
