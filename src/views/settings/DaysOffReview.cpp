// SPDX-License-Identifier: GPL-3.0-or-later
#include "DaysOffReview.h"

#include "Accessibility.h"
#include "Button.h"
#include "ButtonRow.h"
#include "Card.h"
#include "CountingRecords.h"
#include "CountingTexts.h"
#include "DaysOffTree.h"
#include "Labels.h"
#include "LongWords.h"
#include "WindowSize.h"

#include <QKeyEvent>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

DaysOffReview::DaysOffReview(CountingRecords& counting, const QString& heading, QWidget* parent)
    : QWidget(parent)
    , m_counting(counting)
    , m_head(new QVBoxLayout)
    , m_message(labels::dim({}))
    , m_tree(new DaysOffTree(m_model))
    , m_add(new Button({}))
    , m_cancel(new Button(tr("Cancel")))
{
    build(heading);
    refreshButton();
    connect(&m_model, &DaysOffModel::checkedChanged, this, &DaysOffReview::refreshButton);
    connect(m_add, &QAbstractButton::clicked, this, &DaysOffReview::accept);
    connect(m_cancel, &QAbstractButton::clicked, this, [this] { Q_EMIT finished({}); });
}

void DaysOffReview::build(const QString& heading)
{
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(pageMargins);
    column->setSpacing(8);
    column->addWidget(cutLongWords(labels::heading(heading))); // it may have the name of a file
    column->addLayout(m_head);
    column->addWidget(m_message);
    m_tree->setObjectName("reviewedDays"_L1);
    m_tree->setAccessibleName(tr("Days off to choose"));
    m_tree->setSelectionMode(QAbstractItemView::NoSelection);
    m_tree->setExpandsOnDoubleClick(false);
    auto* card = Card::around(m_tree);
    card->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);
    column->addWidget(card, 1);
    m_add->setObjectName("addDays"_L1);
    m_add->setProminent(true);
    m_cancel->setObjectName("cancelReview"_L1);
    auto* buttons = new ButtonRow(Qt::AlignRight);
    buttons->add(m_cancel);
    buttons->add(m_add);
    column->addWidget(buttons);
}

void DaysOffReview::takeFocus()
{
    m_tree->setFocus(Qt::OtherFocusReason);
}

void DaysOffReview::showDays(const QList<ListedDayOff>& days, int firstYear)
{
    m_model.setDays(days);
    m_tree->showFrom({firstYear, 1, 1});
    refreshButton();
}

void DaysOffReview::say(const QString& message)
{
    if (m_message->text() == message)
        return;
    m_message->setText(message);
    announce(*this, message);
}

qsizetype DaysOffReview::count(bool isChecked, bool isPresent) const
{
    return std::ranges::count_if(m_model.days(), [=](const ListedDayOff& listed) {
        return listed.isChecked == isChecked && listed.isPresent == isPresent;
    });
}

QSet<QDate> DaysOffReview::datesOff() const
{
    QSet<QDate> dates;
    for (const DayOff& dayOff : m_counting.daysOff())
        dates.insert(dayOff.date);
    return dates;
}

void DaysOffReview::refreshButton()
{
    const auto added = static_cast<int>(count(true, false));
    const auto takenOut = static_cast<int>(count(false, true));
    m_add->setText(changeText(added, takenOut));
    m_add->updateGeometry();
    const bool isEnabled = added > 0 || count(true, true) > 0 || takenOut > 0;
    // Left alone, the focus would move on to a button that does something else.
    if (!isEnabled && window()->focusWidget() == m_add)
        m_cancel->setFocus(Qt::OtherFocusReason);
    m_add->setEnabled(isEnabled);
}

QString DaysOffReview::changeText(int added, int takenOut)
{
    if (added > 0 && takenOut > 0)
        //: Numbers of days off.
        return tr("Add %1, Take Out %2").arg(QString::number(added), QString::number(takenOut));
    if (added > 0)
        return added == 1 ? tr("Add 1 Day Off") : tr("Add %n Days Off", nullptr, added);
    if (takenOut > 0)
        return takenOut == 1 ? tr("Take Out 1 Day Off") : tr("Take Out %n Days Off", nullptr, takenOut);
    return tr("Save");
}

void DaysOffReview::accept()
{
    QList<DayOff> chosen;
    QList<QDate> takenOut;
    for (const ListedDayOff& listed : m_model.days()) {
        if (listed.isChecked)
            chosen.append(listed.day);
        else if (listed.isPresent)
            takenOut.append(listed.day.date);
    }
    const QSet<QDate> before = datesOff();
    if (store(chosen, takenOut))
        Q_EMIT finished(counting_texts::changed(count(true, false), (before - datesOff()).size()));
    else
        say(counting_texts::notStored());
}

bool DaysOffReview::event(QEvent* event)
{
    // Otherwise the key would close the window.
    if (event->type() == QEvent::ShortcutOverride && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape)
        event->accept();
    return QWidget::event(event);
}

void DaysOffReview::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape)
        Q_EMIT finished({});
    else
        QWidget::keyPressEvent(event);
}
