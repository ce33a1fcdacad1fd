// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "DaySpan.h"
#include "RecordForm.h"
#include "RecordJob.h"

#include <QTimer>
#include <QWidget>

#include <optional>

class Button;
class ComboBox;
class DateField;
class QFormLayout;
class QLabel;
class Switch;
struct ViewParts;

/// Chooses what a record of some days looks like, and where it is saved.
class RecordView : public QWidget {
    Q_OBJECT

public:
    explicit RecordView(const ViewParts& parts, QWidget* parent = nullptr);

    /// Offers the month, quarter or year that is shown, and what it belongs to.
    void setShown(DaySpan span);
    /// Saves what is chosen, without asking where.
    void saveTo(const QString& path);

private:
    void addPeriod(QFormLayout& rows);
    void addForm(QFormLayout& rows);
    void addFoot();
    void connectJob();
    /// The chosen period; nothing if a field holds no date, or the last day is before the first.
    [[nodiscard]] std::optional<DaySpan> span() const;
    [[nodiscard]] RecordForm form() const;
    [[nodiscard]] bool isPdf() const;
    void refresh();
    void refuseDates();
    void chooseFile();
    void setRunning(bool isRunning);
    void finish(const QString& message, bool isProblem = false);
    void say(const QString& message, bool isProblem = false);
    void showProgress();
    void cancel();
    void openFile();

    const ViewParts& m_parts;
    QList<DaySpan> m_spans;
    ComboBox* m_period;
    DateField* m_from;
    DateField* m_until;
    ComboBox* m_format;
    ComboBox* m_days;
    ComboBox* m_paper;
    Switch* m_notes;
    Switch* m_changes;
    Switch* m_signature;
    QLabel* m_message;
    Button* m_open;
    Button* m_cancel;
    Button* m_save;
    QString m_path;
    QTimer m_untilProgress;
    int m_percent = 0;
    RecordJob m_job;
};
