// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "CountingCard.h"
#include "DaysOffModel.h"

#include <QDate>

class Button;
class Clock;
class CountingRecords;
class DateField;
class DaysOffTree;
class QLineEdit;
class ViewSettings;

/// The days off, and where more of them come from.
class DaysOffCard : public CountingCard {
    Q_OBJECT

public:
    DaysOffCard(CountingRecords& counting, const Clock& clock, ViewSettings& viewSettings, QWidget* parent = nullptr);

    /// Where a person goes on after a review, which began with the holidays or with a file.
    enum class Origin { Holidays, File };
    /// Shows what was done, and a screen reader says it. An empty message leaves what is shown.
    void returnFrom(Origin origin, const QString& message);
    /// Says why a file could not be read.
    void showFileProblem(const QString& reason);

Q_SIGNALS:
    void holidaysRequested();
    void fileChosen(const QString& path);

private:
    void addSources();
    void addList();
    void addEntry();
    void showRegion();
    void showDays();
    void refreshButton();
    void showMessage(const QString& message);
    void add();
    void remove();
    void removeRegion();
    void chooseFile();

    CountingRecords& m_counting;
    const Clock& m_clock;
    ViewSettings& m_viewSettings;
    DaysOffModel m_model{false};
    QLabel* m_region;
    Button* m_chooseHolidays;
    Button* m_removeRegion;
    Button* m_chooseFile;
    QLabel* m_message;
    DateField* m_date;
    QLineEdit* m_name;
    QLabel* m_empty;
    DaysOffTree* m_tree;
    Button* m_takeOut;
};
