// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class QBoxLayout;

/// Buttons side by side, or stacked where the row is too narrow.
class ButtonRow : public QWidget {
    Q_OBJECT

public:
    explicit ButtonRow(Qt::Alignment edge, QWidget* parent = nullptr);

    void add(QWidget* button);

    /// As narrow as the widest button.
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    bool event(QEvent* event) override;

private:
    void arrange();
    [[nodiscard]] int totalWidth() const;

    Qt::Alignment m_edge;
    QBoxLayout* m_buttons;
};
