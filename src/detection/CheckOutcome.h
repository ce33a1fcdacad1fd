// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCoreApplication>

/// What came of a check.
struct CheckOutcome {
    Q_DECLARE_TR_FUNCTIONS(CheckOutcome)

public:
    enum Kind {
        /// There was no check.
        None,
        Running,
        /// Today was marked as in the office.
        Marked,
        /// An office network is in range, and the state of today is not one that a check may change.
        MarkedBefore,
        /// An office network is in range, and a person has taken back today's mark.
        TakenBack,
        NotInRange,
        /// No office network is in range because there is none in the settings.
        NoNetworkSet,
        Failed,
        /// Not made, because tracking is off.
        TrackingOff,
        /// Not made, because the first run is not complete.
        NotSetUp,
    };

    Kind kind = None;
    /// Why the check failed.
    QString problem = {};

    bool operator==(const CheckOutcome&) const = default;

    /// In a sentence. Empty for None.
    [[nodiscard]] QString text() const;
};
