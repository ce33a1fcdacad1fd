// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QComboBox>

/// A choice from a list, drawn like the text fields. Typing finds an entry by how it begins.
class ComboBox : public QComboBox {
    Q_OBJECT

public:
    /// The name is the accessible name.
    explicit ComboBox(const QString& name, QWidget* parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;
    /// Long entries are elided where there is no room for them.
    [[nodiscard]] QSize minimumSizeHint() const override;
    void showPopup() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    /// Ignored: the wheel scrolls the page.
    void wheelEvent(QWheelEvent* event) override;
};
