// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QScrollArea>

/// A part of a window that scrolls where it does not fit. What has the focus is kept in sight.
class Page : public QScrollArea {
    Q_OBJECT

public:
    /// Takes the contents over.
    explicit Page(QWidget* contents, QWidget* parent = nullptr);
    ~Page() override;

private:
    void keepInSight(QWidget* focused);
};

/// A page with these contents on a card.
[[nodiscard]] Page* makeCardPage(QWidget* contents);
