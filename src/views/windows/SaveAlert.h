// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "AlertCard.h"

class ModelContext;

/// A card that is visible while something is not on disk or the data file is not ours, and offers what can be done.
class SaveAlert : public AlertCard {
    Q_OBJECT

public:
    explicit SaveAlert(ModelContext& context, QWidget* parent = nullptr);

    [[nodiscard]] static QString message(const ModelContext& context);

Q_SIGNALS:
    /// The file on disk is to be used instead of what is shown.
    void reloadRequested();

private:
    void refresh();

    ModelContext& m_context;
    Button* m_retry;
    Button* m_reload;
    Button* m_keep;
};
