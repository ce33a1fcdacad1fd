// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

/// The version and the licence of the program.
class AboutView : public QWidget {
    Q_OBJECT

public:
    explicit AboutView(QWidget* parent = nullptr);
};
