// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Symbol.h"

#include <QStringList>
#include <QWidget>

#include <functional>

class IconButton;
class QLabel;
class QVBoxLayout;

/// Names of networks below each other, each with a button that does something with it.
class NetworkList : public QWidget {
    Q_OBJECT

public:
    /// What the button of a network shows and says. A button without `isEnabled` only shows.
    struct Choice {
        Symbol symbol;
        QString help;
        bool isEnabled = true;
    };
    using ChoiceOf = std::function<Choice(const QString& ssid)>;

    explicit NetworkList(ChoiceOf choiceOf, QWidget* parent = nullptr);

    /// Shows the networks in this order; where there is none, the text.
    void setNetworks(const QStringList& networks, const QString& emptyText);

Q_SIGNALS:
    void chosen(const QString& ssid);

private:
    struct Row {
        QWidget* whole;
        QLabel* name;
        IconButton* button;
    };

    [[nodiscard]] Row makeRow();
    void showNetwork(const Row& row, const QString& ssid);
    /// Hands the focus on where a button that has it is to go; without another one the list itself takes it.
    void leave(QWidget* button, QWidget* next);

    ChoiceOf m_choiceOf;
    QVBoxLayout* m_column;
    QLabel* m_empty;
    QList<Row> m_rows;
    QStringList m_networks;
};
