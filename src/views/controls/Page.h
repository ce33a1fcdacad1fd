// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QScrollArea>

/// A scroll area that keeps the focused control in view.
class Page : public QScrollArea {
    Q_OBJECT

public:
    /// Takes ownership of the contents.
    explicit Page(QWidget* contents, QWidget* parent = nullptr);
    ~Page() override;

private:
    void scrollToFocused(QWidget* focused);
};

/// A page with the contents on a card.
[[nodiscard]] Page* makeCardPage(QWidget* contents);
