// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStackedWidget>

#include <functional>
#include <vector>

/// Pages of which one is shown. Each is built when it is first wanted.
class LazyStack : public QStackedWidget {
    Q_OBJECT

public:
    using PageBuilder = std::function<QWidget*()>;

    explicit LazyStack(std::vector<PageBuilder> builders, QWidget* parent = nullptr);

    [[nodiscard]] int pageCount() const { return static_cast<int>(m_pages.size()); }
    [[nodiscard]] QWidget& page(int index);
    void showPage(int index);
    /// Discards a page that is out of date, so that it is built again when it is next shown.
    void discardPage(int index);

private:
    std::vector<PageBuilder> m_builders;
    std::vector<QWidget*> m_pages;
};
