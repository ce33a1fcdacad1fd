// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QString;
class RecordPaper;
struct RecordContents;
struct RecordTotal;

/// Adds the figures of a record, its goals and rules, and how days count.
void addRecordSummary(RecordPaper& paper, const RecordContents& contents);

/// The figures of a part of the period in a line: "21 workdays · 9 in the office · ...".
[[nodiscard]] QString recordTotalText(const RecordTotal& total);
