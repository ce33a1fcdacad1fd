// SPDX-License-Identifier: GPL-3.0-or-later
#include "ExchangeCard.h"

#include "BackupTexts.h"
#include "Button.h"
#include "ButtonRow.h"
#include "CalendarExport.h"
#include "Clock.h"
#include "DayMarker.h"
#include "DayRecords.h"
#include "DaysCsv.h"
#include "FileBytes.h"
#include "FileDialog.h"
#include "FileError.h"
#include "Labels.h"
#include "StoreError.h"
#include "Switch.h"

#include <QFileDialog>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

ExchangeCard::ExchangeCard(DayMarker& marker, const Clock& clock, ViewSettings& viewSettings, QWidget* parent)
    : QWidget(parent)
    , m_marker(marker)
    , m_clock(clock)
    , m_viewSettings(viewSettings)
    , m_message(labels::text({}))
    , m_problem(labels::error({}))
    , m_import(new Button(tr("Import Days…")))
    , m_exportCalendar(new Button(tr("Export Calendar…")))
{
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->setSpacing(8);
    column->addWidget(labels::heading(tr("Export and Import")));
    m_message->hide();
    m_problem->hide();
    column->addWidget(m_message);
    column->addWidget(m_problem);
    addList(*column);
    column->addSpacing(8);
    addCalendar(*column);
}

void ExchangeCard::addList(QVBoxLayout& column)
{
    auto* exportDays = new Button(tr("Export Days…"));
    exportDays->setObjectName("exportDays"_L1);
    m_import->setObjectName("importDays"_L1);
    column.addWidget(labels::strong(tr("List of Days")));
    column.addWidget(labels::dim(tr("A CSV file with all days, their notes and days off, for a spreadsheet or another "
                                    "computer. Plain lists of dates and states can be imported too.")));
    auto* buttons = new ButtonRow(Qt::AlignLeft);
    buttons->add(exportDays);
    buttons->add(m_import);
    column.addWidget(buttons);
    connect(exportDays, &QAbstractButton::clicked, this, &ExchangeCard::chooseListPlace);
    connect(m_import, &QAbstractButton::clicked, this, &ExchangeCard::chooseImport);
}

void ExchangeCard::addCalendar(QVBoxLayout& column)
{
    column.addWidget(labels::strong(tr("Calendar")));
    column.addWidget(labels::dim(tr("An iCalendar file with an all-day event for each day in these states, without "
                                    "notes and reasons. Importing a later one updates the events.")));
    for (const DayState state : allDayStates) {
        if (state == DayState::UNKNOWN)
            continue;
        auto* toggle = new Switch(description(state));
        toggle->setObjectName(rawValue(state));
        toggle->setChecked(true);
        m_states.insert(state, toggle);
        column.addWidget(toggle);
        connect(toggle, &QAbstractButton::toggled, this, &ExchangeCard::refreshCalendarButton);
    }
    m_exportCalendar->setObjectName("exportCalendar"_L1);
    auto* buttons = new ButtonRow(Qt::AlignLeft);
    buttons->add(m_exportCalendar);
    column.addWidget(buttons);
    connect(m_exportCalendar, &QAbstractButton::clicked, this, &ExchangeCard::chooseCalendarPlace);
}

void ExchangeCard::refreshCalendarButton()
{
    m_exportCalendar->setEnabled(!chosenStates().isEmpty());
}

QSet<DayState> ExchangeCard::chosenStates() const
{
    QSet<DayState> states;
    for (auto state = m_states.begin(); state != m_states.end(); ++state) {
        if (state.value()->isChecked())
            states.insert(state.key());
    }
    return states;
}

void ExchangeCard::showMessage(const QString& message)
{
    m_problem->hide();
    m_message->setText(message);
    m_message->setVisible(!message.isEmpty());
    if (!message.isEmpty())
        announce(*this, message);
}

void ExchangeCard::showProblem(const QString& problem)
{
    m_message->hide();
    m_problem->setText(problem);
    m_problem->setVisible(!problem.isEmpty());
}

void ExchangeCard::focusImport()
{
    m_import->clearFocus(); // which the page may have given back already, without the ring
    const bool isByKey = window()->testAttribute(Qt::WA_KeyboardFocusChange);
    m_import->setFocus(isByKey ? Qt::TabFocusReason : Qt::OtherFocusReason);
}

void ExchangeCard::chooseImport()
{
    QFileDialog& dialog = makeFileDialog("importFile", tr("Choose a List of Days"), m_viewSettings, this);
    dialog.setFileMode(QFileDialog::ExistingFile);
    dialog.setNameFilters({tr("Lists of days (*.csv *.tsv *.txt)"), tr("All files (*)")});
    connect(&dialog, &QFileDialog::fileSelected, this, &ExchangeCard::importRequested);
    dialog.open();
}

void ExchangeCard::chooseListPlace()
{
    const QString name = tr("Pellory days %1.csv", "file name").arg(m_clock.today().toString(Qt::ISODate));
    choosePlace(tr("Export Days"), name, tr("CSV files (*.csv)"), [this](const QString& path) { writeList(path); });
}

// It always has the same name, as a later file takes the place of an earlier one.
void ExchangeCard::chooseCalendarPlace()
{
    choosePlace(tr("Export Calendar"), tr("Pellory.ics", "file name"), tr("Calendar files (*.ics)"),
                [this](const QString& path) { writeCalendar(path); });
}

void ExchangeCard::choosePlace(const QString& title, const QString& name, const QString& filter, const Export& write)
{
    QFileDialog& dialog = makeFileDialog("exportFile", title, m_viewSettings, this);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setNameFilters({filter, tr("All files (*)")});
    dialog.setDefaultSuffix(QFileInfo(name).suffix());
    dialog.selectFile(name);
    connect(&dialog, &QFileDialog::fileSelected, this, write);
    dialog.open();
}

void ExchangeCard::writeList(const QString& path)
{
    try {
        const QList<DayRecord> days = dayRecords(m_marker, wholeCalendar());
        write(path, daysCsv(days, m_marker.absences().kinds()), days.size());
    } catch (const StoreError& error) {
        showProblem(tr("Nothing was exported. %1").arg(error.description()));
    }
}

void ExchangeCard::writeCalendar(const QString& path)
{
    try {
        const QList<DayRecord> days = dayRecords(m_marker, wholeCalendar());
        const QSet<DayState> states = chosenStates();
        const auto count =
            std::ranges::count_if(days, [&](const DayRecord& day) { return states.contains(day.state); });
        write(path, calendarFile(days, states, m_clock.now()), count);
    } catch (const StoreError& error) {
        showProblem(tr("Nothing was exported. %1").arg(error.description()));
    }
}

void ExchangeCard::write(const QString& path, const QByteArray& bytes, qsizetype days)
{
    try {
        writeFile(path, bytes);
        showMessage(
            tr("%1 written to %2.", "number of days, file").arg(backup_texts::days(days), QFileInfo(path).fileName()));
    } catch (const FileError& error) {
        showProblem(tr("Nothing was exported. %1").arg(error.description()));
    }
}
