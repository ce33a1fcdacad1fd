// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "RecordForm.h"

#include <memory>

class Month;
class RecordPaper;
struct RecordContents;

/// Adds the days of a month, as lines or as a grid, and its figures.
void addRecordMonth(RecordPaper& paper, const RecordContents& contents, const RecordForm& form,
                    const std::shared_ptr<const Month>& month);
