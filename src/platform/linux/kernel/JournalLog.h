// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// Sends what the program logs to the journal where standard error leads there anyway, so that each line keeps its
/// level and category. Elsewhere, and where the program was built without it, the log stays on standard error.
void logToJournalIfPresent();
