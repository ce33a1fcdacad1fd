// SPDX-License-Identifier: GPL-3.0-or-later
#include "TrackingPopover.h"

#include "Button.h"
#include "Clock.h"
#include "Follow.h"
#include "InOfficeCheck.h"
#include "Labels.h"
#include "TrackingStatus.h"

#include <QFormLayout>
#include <QLocale>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

// In the usual font, with which it grows.
constexpr int resultWidth = 220;

QLabel* addRow(QFormLayout& rows, const QString& name)
{
    auto* value = labels::singleLine(labels::text({}));
    rows.addRow(labels::singleLine(labels::dim(name)), value);
    return value;
}

// It may be an error of any length.
QLabel* addResult(QFormLayout& rows, const QString& name)
{
    auto* value = labels::text({});
    value->setFixedWidth(fonts::grown(resultWidth, value->font()));
    auto* label = labels::singleLine(labels::dim(name));
    label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    rows.addRow(label, value);
    return value;
}

} // namespace

TrackingPopover::TrackingPopover(TrackingStatus& status, const InOfficeCheck& check, const Clock& clock,
                                 QWidget* anchor)
    : Popover(anchor, Side::Below)
    , m_status(status)
    , m_check(check)
    , m_clock(clock)
    , m_title(labels::singleLine(labels::strong({})))
    , m_rows(new QFormLayout)
    , m_wifi(addRow(*m_rows, tr("Wi-Fi")))
    , m_location(addRow(*m_rows, tr("Location access")))
    , m_lastCheck(addRow(*m_rows, tr("Last check")))
    , m_result(addResult(*m_rows, tr("Result")))
    , m_nextCheck(addRow(*m_rows, tr("Next check")))
    , m_setUp(new Button(tr("Finish Set-up")))
{
    m_rows->setHorizontalSpacing(24);
    column().setSpacing(12);
    column().addWidget(m_title);
    column().addLayout(m_rows);
    column().addWidget(m_setUp, 0, Qt::AlignRight);
    m_setUp->setObjectName("finishSetUp"_L1);
    m_setUp->setProminent(true);
    connect(m_setUp, &QAbstractButton::clicked, this, [this] {
        close();
        Q_EMIT setUpRequested();
    });
    connect(&status, &TrackingStatus::changed, this, &TrackingPopover::refresh);
    follow(check.lastCheck, this, [this] { refresh(); });
    follow(check.lastOutcome, this, [this] { refresh(); });
    follow(check.nextCheck, this, [this] { refresh(); });
}

void TrackingPopover::refresh()
{
    m_title->setText(m_status.text());
    m_wifi->setText(!m_status.isWiFiKnown() ? tr("Unknown") : m_status.isWiFiOn() ? tr("On") : tr("Off"));
    m_location->setText(isAccessGranted(m_status.permission()) ? tr("Allowed") : tr("Missing"));
    m_lastCheck->setText(timeText(m_check.lastCheck));
    showResult();
    // The timer of the checks runs on while there is nothing to check.
    m_nextCheck->setText(timeText(m_status.isChecking() ? m_check.nextCheck.value() : QDateTime()));
    m_setUp->setVisible(!m_status.isSetUp());
    setAccessibleName(m_title->text());
    setAccessibleDescription(spokenRows());
    fitToContents();
}

void TrackingPopover::showResult()
{
    const CheckOutcome outcome = m_check.lastOutcome;
    m_result->setText(outcome.text());
    m_result->setForegroundRole(outcome.kind == CheckOutcome::Failed ? QPalette::BrightText : QPalette::WindowText);
    m_rows->setRowVisible(m_result, outcome.kind != CheckOutcome::None);
}

QString TrackingPopover::spokenRows() const
{
    QStringList spoken;
    const auto text = [this](int row, QFormLayout::ItemRole part) {
        QString words = qobject_cast<QLabel*>(m_rows->itemAt(row, part)->widget())->text();
        while (words.endsWith(u'.')) // the results are sentences
            words.chop(1);
        return words;
    };
    for (int row = 0; row < m_rows->rowCount(); ++row) {
        if (m_rows->isRowVisible(row))
            spoken.append(text(row, QFormLayout::LabelRole) + ": "_L1 + text(row, QFormLayout::FieldRole));
    }
    return spoken.join(". "_L1);
}

QString TrackingPopover::timeText(const QDateTime& time) const
{
    if (!time.isValid())
        return tr("None", "check");
    const bool isToday = time.date() == m_clock.today();
    return isToday ? QLocale().toString(time.time(), QLocale::ShortFormat)
                   : QLocale().toString(time, QLocale::ShortFormat);
}
