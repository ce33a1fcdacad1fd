// SPDX-License-Identifier: GPL-3.0-or-later
#include "AbsenceKindsCard.h"

#include "ComboBox.h"
#include "CountingRecords.h"
#include "IconButton.h"
#include "Labels.h"
#include "LongWords.h"
#include "Rows.h"
#include "TextField.h"

#include <QSignalBlocker>
#include <QVBoxLayout>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr int longestOwnName = 60; // as in the menu of a day
constexpr std::array treatments{Treatment::OutOfOffice, Treatment::InOffice, Treatment::LeftOut};

} // namespace

AbsenceKindsCard::AbsenceKindsCard(CountingRecords& counting, QWidget* parent)
    : CountingCard(tr("Kinds of Absence"),
                   tr("The menu of a day gives a kind to a day out of office. Choose how the days of each kind count."),
                   parent)
    , m_counting(counting)
    , m_table(new QVBoxLayout)
    , m_name(new TextField(tr("New kind of absence")))
    , m_ownHelp(labels::dim(tr("If you remove a kind, its days stay out of office, without a kind.")))
{
    m_table->setSpacing(6);
    column().addLayout(m_table);
    addEntry();
    column().addWidget(m_ownHelp);
    addProblemLine();
    showKinds();
    connect(&counting, &CountingRecords::changed, this, &AbsenceKindsCard::showKinds);
}

void AbsenceKindsCard::addEntry()
{
    m_name->setObjectName("newKind"_L1);
    m_name->setMaxLength(longestOwnName);
    auto* button = new IconButton(Symbol::Plus, tr("Add Kind of Absence"));
    button->setObjectName("addKind"_L1);
    column().addLayout(makeEntryRow(m_name, button, [this](const QString& name) { return add(name); }));
    connect(m_name, &QLineEdit::textChanged, this, [this] { showProblem({}); });
}

void AbsenceKindsCard::showKinds()
{
    const auto kinds = m_counting.absenceKinds();
    if (kinds.isEmpty() && !m_rows.isEmpty())
        return; // they cannot be read
    for (auto row = m_rows.begin(); row != m_rows.end();) {
        const auto kept = std::ranges::find(kinds, row->kind.id, &AbsenceKind::id);
        if (kept != kinds.end()) {
            (row++)->kind = *kept;
            continue;
        }
        row->whole->hide();
        row->whole->deleteLater();
        row = m_rows.erase(row);
    }
    for (const AbsenceKind& kind : kinds) { // new ones come last
        if (std::ranges::none_of(m_rows, [&](const Row& row) { return row.kind.id == kind.id; }))
            m_rows.append(makeRow(kind));
    }
    std::ranges::for_each(m_rows, &AbsenceKindsCard::showTreatment);
    m_ownHelp->setVisible(!m_rows.isEmpty() && m_rows.last().remove != nullptr);
}

AbsenceKindsCard::Row AbsenceKindsCard::makeRow(const AbsenceKind& kind)
{
    const QString name = description(kind);
    Row row{kind, new QWidget, new ComboBox(tr("How %1 counts", "kind of absence").arg(name)), nullptr};
    row.treatment->addItems({tr("Out of Office"), tr("In the Office"), tr("Not a Workday")});
    auto* line = new QHBoxLayout(row.whole);
    line->setContentsMargins({});
    line->setSpacing(8);
    line->addWidget(cutLongWords(labels::text(name)), 1);
    line->addWidget(row.treatment);
    const int id = kind.id;
    auto* remove = new IconButton(Symbol::Cross, tr("Remove %1", "kind of absence").arg(name));
    remove->setQuiet();
    line->addWidget(remove);
    if (id >= AbsenceKind::firstOwn) {
        row.remove = remove;
        remove->setAccessibleDescription(m_ownHelp->text());
        connect(remove, &QAbstractButton::clicked, this, [this, id] { this->remove(id); });
    } else {
        QSizePolicy policy = remove->sizePolicy(); // so that the choices stand below each other
        policy.setRetainSizeWhenHidden(true);
        remove->setSizePolicy(policy);
        remove->hide();
    }
    connect(row.treatment, &QComboBox::activated, this,
            [this, id](int place) { setTreatment(id, treatments.at(static_cast<std::size_t>(place))); });
    m_table->addWidget(row.whole);
    return row;
}

void AbsenceKindsCard::showTreatment(const Row& row)
{
    const auto place = std::ranges::find(treatments, row.kind.treatment) - treatments.begin();
    row.treatment->setCurrentIndex(static_cast<int>(place));
}

void AbsenceKindsCard::setTreatment(int kind, Treatment treatment)
{
    const auto row = std::ranges::find_if(m_rows, [kind](const Row& each) { return each.kind.id == kind; });
    if (row->kind.treatment != treatment && !report(m_counting.setTreatment(kind, treatment)))
        showTreatment(*row);
}

bool AbsenceKindsCard::add(const QString& name)
{
    if (name.simplified().isEmpty()) {
        showProblem(tr("Type a name for the kind of absence."));
        return false;
    }
    const auto before = m_rows.size();
    const auto added = m_counting.addAbsenceKind(name);
    if (!report(added.has_value()))
        return false;
    if (m_rows.size() == before)
        showProblem(tr("There is a kind of this name already."));
    return m_rows.size() > before;
}

void AbsenceKindsCard::remove(int kind)
{
    const auto row = std::ranges::find_if(m_rows, [kind](const Row& each) { return each.kind.id == kind; });
    const auto place = row - m_rows.begin();
    const bool hadFocus = row->remove->hasFocus();
    if (!report(m_counting.removeAbsenceKind(kind)) || !hadFocus)
        return;
    // Left alone, the focus would move on to a control that does something else.
    const Row& next = m_rows.at(std::min(place, m_rows.size() - 1));
    (next.remove != nullptr ? static_cast<QWidget*>(next.remove) : m_name)->setFocus(Qt::TabFocusReason);
}
