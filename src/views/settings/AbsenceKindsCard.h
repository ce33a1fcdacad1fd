// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Absence.h"
#include "CountingCard.h"

class ComboBox;
class CountingRecords;
class IconButton;
class QLineEdit;

/// How each kind of absence counts, and the kinds that the person has named.
class AbsenceKindsCard : public CountingCard {
    Q_OBJECT

public:
    explicit AbsenceKindsCard(CountingRecords& counting, QWidget* parent = nullptr);

private:
    struct Row {
        AbsenceKind kind;
        QWidget* whole;
        ComboBox* treatment;
        /// Null for a kind of the program.
        IconButton* remove;
    };

    void addEntry();
    void showKinds();
    [[nodiscard]] Row makeRow(const AbsenceKind& kind);
    static void showTreatment(const Row& row);
    void setTreatment(int kind, Treatment treatment);
    bool add(const QString& name);
    void remove(int kind);

    CountingRecords& m_counting;
    QVBoxLayout* m_table;
    QLineEdit* m_name;
    QLabel* m_ownHelp;
    QList<Row> m_rows;
};
