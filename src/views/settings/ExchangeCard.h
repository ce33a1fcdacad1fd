// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "DayState.h"

#include <QHash>
#include <QSet>
#include <QWidget>

#include <functional>

class Button;
class Clock;
class DayMarker;
class QLabel;
class QVBoxLayout;
class Switch;
class ViewSettings;

/// Where days leave the program as files, and come into it.
class ExchangeCard : public QWidget {
    Q_OBJECT

public:
    ExchangeCard(DayMarker& marker, const Clock& clock, ViewSettings& viewSettings, QWidget* parent = nullptr);

    /// Shows what was done, or why something was not done, and a screen reader says it. With an empty message, neither.
    void showMessage(const QString& message);
    void showProblem(const QString& problem);
    /// Gives the focus to the button that imports.
    void focusImport();

Q_SIGNALS:
    void importRequested(const QString& path);

private:
    void addList(QVBoxLayout& column);
    void addCalendar(QVBoxLayout& column);
    void chooseImport();
    void chooseListPlace();
    void chooseCalendarPlace();
    using Export = std::function<void(const QString& path)>;
    void choosePlace(const QString& title, const QString& name, const QString& filter, const Export& write);
    void writeList(const QString& path);
    void writeCalendar(const QString& path);
    void write(const QString& path, const QByteArray& bytes, qsizetype days);
    void refreshCalendarButton();
    [[nodiscard]] QSet<DayState> chosenStates() const;

    DayMarker& m_marker;
    const Clock& m_clock;
    ViewSettings& m_viewSettings;
    QLabel* m_message;
    QLabel* m_problem;
    Button* m_import;
    Button* m_exportCalendar;
    QHash<DayState, Switch*> m_states;
};
