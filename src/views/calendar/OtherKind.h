// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Popover.h"

#include <functional>

class CountingRecords;
class QLabel;
struct AbsenceKind;

/// Asks for the name of a kind of absence, and adds it.
class OtherKind : public Popover {
    Q_OBJECT

public:
    /// `choose` is called with the kind, which may have existed.
    OtherKind(CountingRecords& counting, std::function<void(const AbsenceKind& kind)> choose, QWidget* cell);

private:
    bool accept(const QString& name);

    CountingRecords& m_counting;
    std::function<void(const AbsenceKind& kind)> m_choose;
    QLabel* m_error;
};
