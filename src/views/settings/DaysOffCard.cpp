// SPDX-License-Identifier: GPL-3.0-or-later
#include "DaysOffCard.h"

#include "Button.h"
#include "ButtonRow.h"
#include "Clock.h"
#include "CountingRecords.h"
#include "CountingTexts.h"
#include "DateField.h"
#include "DaysOffTree.h"
#include "FileDialog.h"
#include "HolidayChooser.h"
#include "IconButton.h"
#include "Labels.h"

#include <QFileDialog>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

DaysOffCard::DaysOffCard(CountingRecords& counting, const Clock& clock, ViewSettings& viewSettings, QWidget* parent)
    : CountingCard(tr("Days Off"), tr("A day off is not a workday, whatever its day of the week."), parent)
    , m_counting(counting)
    , m_clock(clock)
    , m_viewSettings(viewSettings)
    , m_region(labels::text({}))
    , m_chooseHolidays(new Button({}))
    , m_removeRegion(new Button(tr("Remove", "public holidays")))
    , m_chooseFile(new Button(tr("From a Calendar File…")))
    , m_message(labels::text({}))
    , m_date(new DateField(tr("Date")))
    , m_name(new TextField(tr("Name of the day off")))
    , m_empty(labels::dim(tr("There are no days off.")))
    , m_tree(new DaysOffTree(m_model))
    , m_takeOut(new Button({}))
{
    addSources();
    addEntry();
    addProblemLine();
    m_message->hide();
    column().addWidget(m_message);
    addList();
    const auto show = [this] {
        showRegion();
        showDays();
    };
    show();
    m_tree->showFrom(clock.now().date());
    connect(&counting, &CountingRecords::changed, this, show);
}

void DaysOffCard::addSources()
{
    m_chooseHolidays->setObjectName("chooseHolidays"_L1);
    m_removeRegion->setObjectName("removeRegion"_L1);
    m_chooseFile->setObjectName("chooseFile"_L1);
    column().addWidget(m_region);
    auto* buttons = new ButtonRow(Qt::AlignLeft);
    for (Button* button : {m_chooseHolidays, m_removeRegion, m_chooseFile})
        buttons->add(button);
    column().addWidget(buttons);
    connect(m_chooseHolidays, &QAbstractButton::clicked, this, &DaysOffCard::holidaysRequested);
    connect(m_removeRegion, &QAbstractButton::clicked, this, &DaysOffCard::removeRegion);
    connect(m_chooseFile, &QAbstractButton::clicked, this, &DaysOffCard::chooseFile);
}

void DaysOffCard::addEntry()
{
    m_date->setObjectName("dayOffDate"_L1);
    m_name->setObjectName("dayOffName"_L1);
    auto* button = new IconButton(Symbol::Plus, tr("Add Day Off"));
    button->setObjectName("addDayOff"_L1);
    auto* row = new QHBoxLayout;
    row->addWidget(m_date);
    row->addWidget(m_name, 1);
    row->addWidget(button);
    column().addLayout(row);
    connect(button, &QAbstractButton::clicked, this, &DaysOffCard::add);
    for (QLineEdit* field : {static_cast<QLineEdit*>(m_date), m_name}) {
        connect(field, &QLineEdit::returnPressed, this, &DaysOffCard::add);
        connect(field, &QLineEdit::textChanged, this, [this] { showProblem({}); });
    }
}

void DaysOffCard::addList()
{
    m_tree->setObjectName("daysOff"_L1);
    m_tree->setAccessibleName(tr("Days off"));
    m_tree->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_tree->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    m_takeOut->setObjectName("takeOut"_L1);
    column().addWidget(m_empty);
    column().addWidget(m_tree);
    column().addWidget(m_takeOut);
    connect(m_tree, &DaysOffTree::selectedChanged, this, &DaysOffCard::refreshButton);
    connect(m_tree, &DaysOffTree::removalRequested, this, [this] {
        remove();
        if (m_tree->hasFocus())
            m_tree->selectCurrent(); // the neighbour, from which keys go on
    });
    connect(m_takeOut, &QAbstractButton::clicked, this, &DaysOffCard::remove);
}

void DaysOffCard::showRegion()
{
    const auto region = m_counting.holidayRegion();
    m_region->setVisible(region.has_value());
    m_removeRegion->setVisible(region.has_value());
    m_chooseHolidays->setText(region ? tr("Change…") : tr("Public Holidays…"));
    m_chooseHolidays->updateGeometry();
    if (!region)
        return;
    const QString name = holidayAreaName(region->id);
    m_region->setText(tr("Public holidays of %1, added until %2", "region, year")
                          .arg(name.isEmpty() ? region->id : name, QString::number(region->lastYear)));
    m_chooseHolidays->setAccessibleName(tr("Change the public holidays"));
    m_removeRegion->setAccessibleName(tr("Remove the public holidays"));
}

void DaysOffCard::showDays()
{
    QList<ListedDayOff> days;
    for (const DayOff& dayOff : m_counting.daysOff())
        days.append({.day = dayOff, .note = counting_texts::source(dayOff.source)});
    if (days != m_model.days()) {
        const QDate current = m_tree->currentDate();
        m_model.setDays(days);
        m_tree->showFrom(current.isValid() ? current : m_clock.now().date());
    }
    m_empty->setVisible(days.isEmpty());
    m_tree->setVisible(!days.isEmpty());
    m_takeOut->setVisible(!days.isEmpty());
    refreshButton();
}

void DaysOffCard::refreshButton()
{
    const auto count = m_tree->selectedDates().size();
    m_takeOut->setText(count == 1   ? tr("Take Out 1 Day Off")
                       : count == 0 ? tr("Take Out")
                                    : tr("Take Out %n Days Off", nullptr, static_cast<int>(count)));
    m_takeOut->updateGeometry();
    // Left alone, the focus would move on to a button that does something else.
    if (count == 0 && window()->focusWidget() == m_takeOut)
        (m_tree->isHidden() ? static_cast<QWidget*>(m_date) : m_tree)->setFocus(Qt::TabFocusReason);
    m_takeOut->setEnabled(count > 0);
}

void DaysOffCard::showMessage(const QString& message)
{
    m_message->setText(message);
    m_message->setVisible(!message.isEmpty());
    if (!message.isEmpty())
        announce(*this, message);
}

void DaysOffCard::returnFrom(Origin origin, const QString& message)
{
    if (!message.isEmpty())
        showMessage(message);
    showProblem({}); // with another file
    QWidget* button = origin == Origin::File ? m_chooseFile : m_chooseHolidays;
    button->clearFocus(); // which the page may have given back already, without the ring
    const bool isByKey = window()->testAttribute(Qt::WA_KeyboardFocusChange);
    button->setFocus(isByKey ? Qt::TabFocusReason : Qt::OtherFocusReason);
}

void DaysOffCard::showFileProblem(const QString& reason)
{
    showMessage({});
    showProblem(tr("No days off were read. %1").arg(reason));
}

void DaysOffCard::add()
{
    const auto date = m_date->date();
    if (!date) {
        showProblem(m_date->refusal());
        return;
    }
    if (!report(m_counting.addDaysOff({{.date = *date, .name = m_name->text().simplified()}})))
        return;
    m_tree->showFrom(*date);
    showMessage(tr("%1 is a day off now.", "date").arg(counting_texts::date(*date)));
    m_date->clear();
    m_name->clear();
    m_date->setFocus(Qt::OtherFocusReason);
}

void DaysOffCard::remove()
{
    QList<QDate> dates = m_tree->selectedDates();
    if (dates.isEmpty() && m_tree->currentDate().isValid())
        dates.append(m_tree->currentDate());
    if (dates.isEmpty() || !report(m_counting.removeDaysOff(dates)))
        return;
    showMessage(counting_texts::changed(0, dates.size()));
    if (m_tree->isHidden())
        m_date->setFocus(Qt::TabFocusReason);
}

void DaysOffCard::removeRegion()
{
    const QString name = holidayAreaName(m_counting.holidayRegion().value_or(HolidayRegion()).id);
    const bool hadFocus = m_removeRegion->hasFocus();
    if (!report(m_counting.removeHolidayRegion(m_clock.now().date())))
        return;
    showMessage(tr("The public holidays of %1 from today on were taken out.").arg(name));
    if (hadFocus)
        m_chooseHolidays->setFocus(Qt::TabFocusReason);
}

void DaysOffCard::chooseFile()
{
    QFileDialog& dialog = makeFileDialog("calendarFile", tr("Choose a Calendar File"), m_viewSettings, this);
    dialog.setFileMode(QFileDialog::ExistingFile);
    dialog.setNameFilters({tr("Calendar files (*.ics)"), tr("All files (*)")});
    connect(&dialog, &QFileDialog::fileSelected, this, &DaysOffCard::fileChosen);
    dialog.open();
}
