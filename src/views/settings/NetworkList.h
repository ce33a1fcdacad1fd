// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Symbol.h"

#include <QStringList>
#include <QWidget>

#include <functional>

class IconButton;
class QLabel;
class QVBoxLayout;

/// A column of networks, each with a button.
class NetworkList : public QWidget {
    Q_OBJECT

public:
    /// The button of a network; `%1` in its help stands for the network's name.
    struct Choice {
        Symbol symbol;
        QString help;
        bool isEnabled = true;
    };
    using ChoiceOf = std::function<Choice(const QString& ssid)>;

    explicit NetworkList(ChoiceOf choiceOf, QWidget* parent = nullptr);

    /// Shows the networks in this order, or the text if there are none.
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
    /// Passes the focus on from a button that is about to go; without a next one the list itself takes it.
    void leave(QWidget* button, QWidget* next);

    ChoiceOf m_choiceOf;
    QVBoxLayout* m_column;
    QLabel* m_empty;
    QList<Row> m_rows;
    QStringList m_networks;
};
