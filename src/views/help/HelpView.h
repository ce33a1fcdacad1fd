// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class ViewSettings;

/// The contents of the help window.
class HelpView : public QWidget {
    Q_OBJECT

public:
    explicit HelpView(ViewSettings& settings, QWidget* parent = nullptr);
};
