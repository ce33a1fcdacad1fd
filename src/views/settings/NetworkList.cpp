// SPDX-License-Identifier: GPL-3.0-or-later
#include "NetworkList.h"

#include "IconButton.h"
#include "Labels.h"
#include "NetworkName.h"
#include "SymbolView.h"

#include <QPainter>
#include <QVBoxLayout>

namespace {

// Elides a long name, and shows all of it in the tool tip.
class NameLabel : public QLabel {
public:
    [[nodiscard]] QSize minimumSizeHint() const override { return {0, QLabel::minimumSizeHint().height()}; }

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        const QString line = fontMetrics().elidedText(text(), Qt::ElideMiddle, width());
        setToolTip(line == text() ? QString() : labels::help(text()));
        QPainter painter(this);
        painter.setPen(palette().color(foregroundRole()));
        painter.drawText(rect(), Qt::AlignLeading | Qt::AlignVCenter, line);
    }
};

} // namespace

NetworkList::NetworkList(ChoiceOf choiceOf, QWidget* parent)
    : QWidget(parent)
    , m_choiceOf(std::move(choiceOf))
    , m_column(new QVBoxLayout(this))
    , m_empty(labels::dim({}))
{
    m_column->setContentsMargins({});
    m_column->setSpacing(0);
    m_column->addWidget(m_empty);
}

void NetworkList::setNetworks(const QStringList& networks, const QString& emptyText)
{
    m_networks = networks;
    m_empty->setText(emptyText);
    m_empty->setVisible(networks.isEmpty());
    // Rows are reused, and so keep the focus: after one network is removed the next can be.
    while (m_rows.size() < networks.size())
        m_rows.append(makeRow());
    while (m_rows.size() > networks.size()) {
        const Row last = m_rows.takeLast();
        leave(last.button, m_rows.isEmpty() ? nullptr : m_rows.last().button);
        last.whole->hide();
        last.whole->deleteLater();
    }
    for (qsizetype i = 0; i < networks.size(); ++i)
        showNetwork(m_rows.at(i), networks.at(i));
}

void NetworkList::leave(QWidget* button, QWidget* next)
{
    // Left alone, the focus would move on to a button that does something else.
    if (window()->focusWidget() == button)
        (next != nullptr ? next : this)->setFocus(Qt::TabFocusReason);
}

NetworkList::Row NetworkList::makeRow()
{
    const Row row{new QWidget, new NameLabel, new IconButton(Symbol::Plus, {})};
    row.button->setQuiet();
    row.name->setTextFormat(Qt::PlainText);
    row.name->setFont(fonts::body(font()));
    auto* line = new QHBoxLayout(row.whole);
    line->setContentsMargins({});
    line->setSpacing(10);
    line->addWidget(new SymbolView(Symbol::Wifi));
    line->addWidget(row.name, 1);
    line->addWidget(row.button);
    m_column->addWidget(row.whole);
    connect(row.button, &QAbstractButton::clicked, this, [this, place = m_rows.size()] {
        // A copy, because a receiver may change the list.
        const QString ssid = m_networks.at(place);
        Q_EMIT chosen(ssid);
    });
    return row;
}

void NetworkList::showNetwork(const Row& row, const QString& ssid)
{
    row.name->setText(ssid.isEmpty() ? tr("(empty name)") : displayName(ssid));
    row.name->setForegroundRole(ssid.isEmpty() ? QPalette::PlaceholderText : QPalette::WindowText);
    const Choice choice = m_choiceOf(ssid);
    row.button->setSymbol(choice.symbol);
    row.button->setHelp(choice.help.arg(row.name->text()));
    if (!choice.isEnabled)
        leave(row.button, nullptr);
    row.button->setEnabled(choice.isEnabled);
}
