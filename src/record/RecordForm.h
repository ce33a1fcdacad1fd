// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPageSize>
#include <QString>

#include <functional>

/// The paper that the person's country uses.
[[nodiscard]] QPageSize::PageSizeId usualPaper();

/// What a record looks like.
struct RecordForm {
    enum class Format { Pdf, Csv };
    enum class Days { Lines, Grid };

    Format format = Format::Pdf;
    /// Of a PDF; a CSV has a line a day.
    Days days = Days::Lines;
    bool hasNotes = true;
    /// Who gave each day its state, and when.
    bool hasChanges = true;
    /// A line to sign on, at the end of a PDF.
    bool hasSignature = false;
    QPageSize::PageSizeId paper = usualPaper();
};

/// Called now and then with how much is done, in per cent. It returns whether to continue.
using RecordProgress = std::function<bool(int percent)>;
