// SPDX-License-Identifier: GPL-3.0-or-later
#include "OtherKind.h"

#include "Button.h"
#include "CountingRecords.h"
#include "Labels.h"
#include "Rows.h"
#include "TextField.h"

#include <QVBoxLayout>

namespace {

// In the usual font, with which it grows.
constexpr int kindFieldWidth = 200;
constexpr int longestKindName = 60;

} // namespace

OtherKind::OtherKind(CountingRecords& counting, std::function<void(const AbsenceKind& kind)> choose, QWidget* cell)
    : Popover(cell, Side::Beside)
    , m_counting(counting)
    , m_choose(std::move(choose))
    , m_error(labels::error(tr("This could not be saved. Try again later.")))
{
    auto* title = labels::strong(tr("Out of Office As"));
    setAccessibleName(title->text());
    auto* field = new TextField(tr("Reason"));
    field->setMaxLength(longestKindName);
    field->setMinimumWidth(fonts::grown(kindFieldWidth, font()));
    setFocusProxy(field);
    auto* button = new Button(tr("OK"));
    button->setProminent(true);
    button->setEnabled(false);
    connect(field, &QLineEdit::textChanged, button,
            [button](const QString& name) { button->setEnabled(!name.trimmed().isEmpty()); });
    m_error->hide();
    column().setSpacing(10);
    column().addWidget(title);
    column().addLayout(makeEntryRow(field, button, [this](const QString& name) { return accept(name); }));
    column().addWidget(m_error);
}

bool OtherKind::accept(const QString& name)
{
    if (name.trimmed().isEmpty())
        return false;
    const auto kind = m_counting.addAbsenceKind(name);
    if (!kind) {
        m_error->show();
        fitToContents();
        return false;
    }
    close();
    m_choose(*kind);
    return true;
}
