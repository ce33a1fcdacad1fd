// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// If standard error goes to the journal, logs to the journal directly, so that each line keeps its level and category.
/// Otherwise, or if built without libsystemd, the log stays on standard error.
void logToJournalIfPresent();
