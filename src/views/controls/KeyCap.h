// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

/// The size of a key cap with this name.
[[nodiscard]] QSize keyCapSize(const QString& name, const QFont& font);

/// Draws a key cap, the picture of a key with its name on it.
void drawKeyCap(QPainter& painter, const QRectF& area, const QString& name, const QPalette& palette);

/// A key cap as a widget.
class KeyCap : public QWidget {
    Q_OBJECT

public:
    explicit KeyCap(const QString& name, QWidget* parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString m_name;
};
