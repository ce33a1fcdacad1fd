// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "DaysOffModel.h"

#include <QSet>
#include <QWidget>

class Button;
class CountingRecords;
class DaysOffTree;
class QLabel;
class QVBoxLayout;

/// Shows days off that may be added, each with a checkbox, and stores what was chosen.
class DaysOffReview : public QWidget {
    Q_OBJECT

public:
    /// Gives the focus to what is to be decided first.
    virtual void takeFocus();

Q_SIGNALS:
    /// The view is to be closed. The message says what was done; it is empty if nothing was.
    void finished(const QString& message);

protected:
    DaysOffReview(CountingRecords& counting, const QString& heading, QWidget* parent = nullptr);

    [[nodiscard]] CountingRecords& counting() { return m_counting; }
    /// That are stored.
    [[nodiscard]] QSet<QDate> datesOff() const;
    /// The room between the heading and the message.
    [[nodiscard]] QVBoxLayout& head() { return *m_head; }
    /// Shows days, those from a year on opened.
    void showDays(const QList<ListedDayOff>& days, int firstYear);
    void say(const QString& message);
    /// Stores the choice. Returns whether that was possible.
    [[nodiscard]] virtual bool store(const QList<DayOff>& chosen, const QList<QDate>& takenOut) = 0;

    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void build(const QString& heading);
    void refreshButton();
    [[nodiscard]] static QString changeText(int added, int takenOut);
    void accept();
    [[nodiscard]] qsizetype count(bool isChecked, bool isPresent) const;

    CountingRecords& m_counting;
    DaysOffModel m_model{true};
    QVBoxLayout* m_head;
    QLabel* m_message;
    DaysOffTree* m_tree;
    Button* m_add;
    Button* m_cancel;
};
