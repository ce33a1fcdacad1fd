// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QScrollArea>

/// A scroll area that keeps in view what the keyboard reaches. Its scroll bars take no room from the contents.
class Page : public QScrollArea {
    Q_OBJECT

public:
    /// Takes ownership of the contents.
    explicit Page(QWidget* contents, QWidget* parent = nullptr);

    /// As wide as the contents need, so that a window of this width never scrolls sideways.
    [[nodiscard]] QSize minimumSizeHint() const override;
    /// Large enough for all contents.
    [[nodiscard]] QSize sizeHint() const override;

    /// Scrolls until a widget on the page is in view.
    void reveal(QWidget& widget);
    /// Lets the page be scrolled so much further, for what covers its foot. The contents stay where they are.
    void setFootRoom(int room);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void applyFootRoom();

    int m_footRoom = 0;
};

/// A page with the contents on a card.
[[nodiscard]] Page* makeCardPage(QWidget* contents);
