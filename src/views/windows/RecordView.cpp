// SPDX-License-Identifier: GPL-3.0-or-later
#include "RecordView.h"

#include "Button.h"
#include "ButtonRow.h"
#include "Clock.h"
#include "ComboBox.h"
#include "DateField.h"
#include "FileDialog.h"
#include "FormRows.h"
#include "Labels.h"
#include "RecordContents.h"
#include "RecordTexts.h"
#include "StoreError.h"
#include "Switch.h"
#include "ViewParts.h"
#include "ViewSettings.h"

#include <QDesktopServices>
#include <QFileDialog>
#include <QFormLayout>
#include <QUrl>

#include <chrono>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr int linesOfMessage = 3;

ComboBox* namedChoice(const char* name, const QString& accessibleName)
{
    auto* choice = new ComboBox(accessibleName);
    choice->setObjectName(QLatin1StringView(name));
    return choice;
}

Switch* namedSwitch(const char* name, const QString& text, bool isOn)
{
    auto* toggle = new Switch(text);
    toggle->setObjectName(QLatin1StringView(name));
    toggle->setChecked(isOn);
    return toggle;
}

DaySpan monthsAround(QDate date, int count)
{
    const QDate first(date.year(), (date.month() - 1) / count * count + 1, 1);
    return {first, first.addMonths(count).addDays(-1)};
}

} // namespace

RecordView::RecordView(const ViewParts& parts, QWidget* parent)
    : QWidget(parent)
    , m_parts(parts)
    , m_period(namedChoice("recordPeriod", tr("Period")))
    , m_from(new DateField(tr("First day")))
    , m_until(new DateField(tr("Last day")))
    , m_format(namedChoice("recordFormat", tr("File")))
    , m_days(namedChoice("recordDays", tr("Days")))
    , m_paper(namedChoice("recordPaper", tr("Paper")))
    , m_notes(namedSwitch("recordNotes", tr("Notes"), RecordForm().hasNotes))
    , m_changes(namedSwitch("recordChanges", tr("Who set each day, and when"), RecordForm().hasChanges))
    , m_signature(namedSwitch("recordSignature", tr("A line for a signature"), RecordForm().hasSignature))
    , m_message(labels::text({}))
    , m_open(new Button(tr("Open")))
    , m_cancel(new Button(tr("Close")))
    , m_save(new Button(tr("Save…")))
{
    auto* rows = makeFormRows(*this);
    addPeriod(*rows);
    addForm(*rows);
    for (Switch* toggle : {m_notes, m_changes, m_signature})
        rows->addRow(toggle);
    addFoot();
    connectJob();
    const QDate today = parts.clock.today();
    setShown(monthsAround(today, 1));
}

void RecordView::addPeriod(QFormLayout& rows)
{
    m_from->setObjectName("recordFrom"_L1);
    m_until->setObjectName("recordUntil"_L1);
    rows.addRow(besideField(tr("Period")), m_period);
    auto* dates = new ButtonRow(Qt::AlignLeft);
    dates->add(m_from);
    dates->add(besideField(tr("to", "between two dates")));
    dates->add(m_until);
    rows.addRow(besideField(tr("From")), dates);
    connect(m_period, &QComboBox::currentIndexChanged, this, &RecordView::refresh);
    for (DateField* field : {m_from, m_until}) {
        connect(field, &QLineEdit::textEdited, this, [this] { m_period->setCurrentIndex(m_period->count() - 1); });
        connect(field, &QLineEdit::returnPressed, m_save, &QAbstractButton::click);
    }
}

void RecordView::addForm(QFormLayout& rows)
{
    m_format->addItem(tr("PDF, to print or hand in"));
    m_format->addItem(tr("CSV, for a spreadsheet"));
    m_days->addItem(tr("A line a day"));
    m_days->addItem(tr("A grid a month"));
    m_paper->addItem(tr("A4"), QPageSize::A4);
    m_paper->addItem(tr("Letter"), QPageSize::Letter);
    m_paper->setCurrentIndex(m_paper->findData(usualPaper()));
    rows.addRow(besideField(tr("File")), m_format);
    rows.addRow(besideField(tr("Days")), m_days);
    rows.addRow(besideField(tr("Paper")), m_paper);
    connect(m_format, &QComboBox::currentIndexChanged, this, &RecordView::refresh);
}

void RecordView::addFoot()
{
    auto& rows = static_cast<QFormLayout&>(*layout());
    // So that nothing below moves with the text.
    m_message->setMinimumHeight(linesOfMessage * m_message->fontMetrics().lineSpacing());
    m_message->setAlignment(Qt::AlignLeading | Qt::AlignTop);
    m_message->setObjectName("recordMessage"_L1);
    rows.addRow(m_message);
    m_open->setObjectName("openRecord"_L1);
    m_cancel->setObjectName("cancelRecord"_L1);
    m_save->setObjectName("saveRecord"_L1);
    m_save->setProminent(true);
    auto* buttons = new ButtonRow(Qt::AlignRight);
    for (Button* button : {m_open, m_cancel, m_save})
        buttons->add(button);
    rows.addRow(buttons);
    connect(m_open, &QAbstractButton::clicked, this, &RecordView::openFile);
    connect(m_cancel, &QAbstractButton::clicked, this, &RecordView::cancel);
    connect(m_save, &QAbstractButton::clicked, this, &RecordView::chooseFile);
}

void RecordView::connectJob()
{
    m_untilProgress.setSingleShot(true);
    m_untilProgress.setInterval(1s);
    connect(&m_untilProgress, &QTimer::timeout, this, &RecordView::showProgress);
    connect(&m_job, &RecordJob::progressed, this, [this](int percent) {
        m_percent = percent;
        if (!m_untilProgress.isActive())
            showProgress();
    });
    connect(&m_job, &RecordJob::saved, this, [this] {
        finish(tr("Saved as %1.", "name of a file").arg(QFileInfo(m_path).fileName()));
        m_open->show();
    });
    connect(&m_job, &RecordJob::stopped, this, [this] { finish(tr("Cancelled. Nothing was saved.")); });
    connect(&m_job, &RecordJob::failed, this,
            [this](const QString& reason) { finish(tr("Nothing was saved. %1").arg(reason), true); });
}

void RecordView::setShown(DaySpan span)
{
    m_spans.clear();
    for (const int count : {1, 3, 12}) {
        const DaySpan around = monthsAround(span.first, count);
        if (around.contains(span.last))
            m_spans.append(around);
    }
    const QSignalBlocker blocker(m_period);
    m_period->clear();
    for (const DaySpan& each : std::as_const(m_spans))
        m_period->addItem(record_texts::period(each));
    m_period->addItem(tr("Other Dates"));
    m_period->setCurrentIndex(static_cast<int>(qMax(0, m_spans.indexOf(span))));
    refresh();
}

std::optional<DaySpan> RecordView::span() const
{
    const int chosen = m_period->currentIndex();
    if (chosen >= 0 && chosen < m_spans.size())
        return m_spans.at(chosen);
    const auto from = m_from->date();
    const auto until = m_until->date();
    return from && until && *from <= *until ? std::optional(DaySpan{*from, *until}) : std::nullopt;
}

bool RecordView::isPdf() const
{
    return m_format->currentIndex() == 0;
}

RecordForm RecordView::form() const
{
    return {.format = isPdf() ? RecordForm::Format::Pdf : RecordForm::Format::Csv,
            .days = m_days->currentIndex() == 0 ? RecordForm::Days::Lines : RecordForm::Days::Grid,
            .hasNotes = m_notes->isChecked(),
            .hasChanges = m_changes->isChecked(),
            .hasSignature = m_signature->isChecked(),
            .paper = QPageSize::PageSizeId(m_paper->currentData().toInt())};
}

void RecordView::refresh()
{
    for (QWidget* widget :
         {static_cast<QWidget*>(m_days), static_cast<QWidget*>(m_paper), static_cast<QWidget*>(m_signature)})
        widget->setEnabled(isPdf());
    if (const int chosen = m_period->currentIndex(); chosen >= 0 && chosen < m_spans.size()) {
        m_from->setDate(m_spans.at(chosen).first);
        m_until->setDate(m_spans.at(chosen).last);
    }
    m_open->hide();
    if (!m_job.isRunning())
        say({});
}

void RecordView::refuseDates()
{
    DateField* wrong = m_from->date() ? m_until : m_from;
    say(wrong->date() ? tr("The last day must not be before the first.") : wrong->refusal(), true);
    wrong->setFocus(Qt::TabFocusReason);
    wrong->selectAll();
}

void RecordView::chooseFile()
{
    const auto chosen = span();
    if (!chosen)
        return refuseDates();
    const QString suffix = isPdf() ? u"pdf"_s : u"csv"_s;
    QFileDialog& dialog = makeFileDialog("recordFile", tr("Save Record"), m_parts.viewSettings, this);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(suffix);
    dialog.setNameFilter(isPdf() ? tr("PDF files (*.pdf)") : tr("CSV files (*.csv)"));
    dialog.selectFile(record_texts::fileName(*chosen) + u'.' + suffix);
    connect(&dialog, &QFileDialog::fileSelected, this, &RecordView::saveTo);
    dialog.open();
}

void RecordView::saveTo(const QString& path)
{
    const auto chosen = span();
    if (!chosen || m_job.isRunning())
        return;
    m_path = path;
    m_percent = 0;
    m_open->hide();
    say({});
    try {
        m_job.start(recordContents(m_parts.marker, m_parts.counting, m_parts.settings, *chosen,
                                   m_parts.viewSettings.weekStart(), m_parts.clock.now()),
                    form(), path);
    } catch (const StoreError& error) {
        return finish(tr("Nothing was saved. %1").arg(error.description()), true);
    }
    setRunning(true);
    m_untilProgress.start();
}

void RecordView::finish(const QString& message, bool isProblem)
{
    m_untilProgress.stop();
    setRunning(false);
    say(message, isProblem);
}

void RecordView::setRunning(bool isRunning)
{
    const QWidget* const focused = window()->focusWidget();
    // Before the other is disabled, or it would pass the focus to any control.
    const auto passFocus = [this, focused](const Button* from, Button* to) {
        const bool isByKey = window()->testAttribute(Qt::WA_KeyboardFocusChange);
        if (focused == from)
            to->setFocus(isByKey ? Qt::TabFocusReason : Qt::OtherFocusReason);
    };
    if (isRunning)
        passFocus(m_save, m_cancel);
    m_save->setEnabled(!isRunning);
    if (!isRunning)
        passFocus(m_cancel, m_save);
    m_cancel->setText(isRunning ? tr("Cancel") : tr("Close"));
    m_cancel->updateGeometry();
}

void RecordView::say(const QString& message, bool isProblem)
{
    m_message->setForegroundRole(isProblem ? QPalette::BrightText : QPalette::WindowText);
    m_message->setText(message);
    if (!message.isEmpty())
        announce(*this, message);
}

void RecordView::showProgress()
{
    // A screen reader does not say each of them.
    m_message->setText(tr("Saving… %1 %").arg(m_percent));
}

void RecordView::cancel()
{
    if (m_job.isRunning())
        m_job.stop();
    else
        window()->close();
}

void RecordView::openFile()
{
    if (!QDesktopServices::openUrl(QUrl::fromLocalFile(m_path)))
        say(tr("No program opens such files here. The file is in %1.").arg(QFileInfo(m_path).absolutePath()), true);
}
