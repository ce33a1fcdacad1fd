// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "RecordForm.h"

class QIODevice;
struct RecordContents;

/// Writes a line for each day of the period, with a heading, for a spreadsheet. The text is UTF-8 and begins with a
/// byte order mark, without which spreadsheets take letters such as umlauts for something else. Fields are separated by
/// what the spreadsheets of the person's locale expect: a semicolon where a comma is the decimal separator. What a
/// spreadsheet would take for a formula begins with an apostrophe. False if it was stopped.
bool writeRecordCsv(const RecordContents& contents, const RecordForm& form, QIODevice& device,
                    const RecordProgress& progress);
