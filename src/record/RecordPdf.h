// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "RecordForm.h"

class QIODevice;
struct RecordContents;

/// Writes a PDF with the figures of the period, and then its months. It can be read without colours. Any thread may
/// call it. False if it was stopped.
bool writeRecordPdf(const RecordContents& contents, const RecordForm& form, QIODevice& device,
                    const RecordProgress& progress);
