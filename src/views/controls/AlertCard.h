// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class Button;
class ButtonRow;
class QLabel;

/// A card in a window that says what is wrong, and offers what can be done. A screen reader says it when it appears.
class AlertCard : public QWidget {
    Q_OBJECT

public:
    explicit AlertCard(QWidget* parent = nullptr);

    void setTexts(const QString& title, const QString& message);
    /// Adds a button on the right of the others.
    Button* addButton(const QString& name, const QString& text = {});

private:
    [[nodiscard]] QString spokenText() const;

    QLabel* m_title;
    QLabel* m_message;
    ButtonRow* m_buttons;
};
