// SPDX-License-Identifier: GPL-3.0-or-later
#include "CaptionRows.h"

#include <algorithm>
#include <array>
#include <limits>

namespace {

// Captions side by side. As long as nothing is in their way they stand where, on average, each is under its marker.
struct CaptionGroup {
    qsizetype count = 1;
    qreal width = 0.0;
    qreal sumOfWantedLefts = 0.0;

    [[nodiscard]] qreal left(const Span& room) const
    {
        return std::clamp(sumOfWantedLefts / static_cast<qreal>(count), room.left,
                          std::max(room.left, room.right - width));
    }
    void append(const CaptionGroup& other, qreal gap)
    {
        sumOfWantedLefts += other.sumOfWantedLefts - static_cast<qreal>(other.count) * (width + gap);
        width += gap + other.width;
        count += other.count;
    }
};

// The captions from left to right, each of equal ones once.
QList<qsizetype> distinctCaptions(const QList<Caption>& captions)
{
    QList<qsizetype> distinct;
    for (qsizetype i = 0; i < captions.size(); ++i) {
        const auto equal = std::ranges::find_if(distinct, [&, &caption = captions.at(i)](qsizetype other) {
            return captions.at(other).centre == caption.centre && captions.at(other).text == caption.text;
        });
        if (equal == distinct.end())
            distinct.append(i);
        else if (captions.at(i).isTarget)
            *equal = i;
    }
    std::ranges::stable_sort(distinct, {}, [&captions](qsizetype i) { return captions.at(i).centre; });
    return distinct;
}

// The upper row where it is free, else the lower one, else the one that ends first.
std::array<QList<qsizetype>, 2> distributed(const QList<Caption>& captions, const Span& room, qreal gap)
{
    std::array<QList<qsizetype>, 2> rows;
    std::array<qreal, 2> begin{room.left, room.left};
    for (const qsizetype i : distinctCaptions(captions)) {
        const Caption& caption = captions.at(i);
        const qreal left = std::min(caption.centre - caption.width / 2, room.right - caption.width);
        const bool isUpper = rows[0].isEmpty() || left >= begin[0] || (left < begin[1] && begin[0] <= begin[1]);
        const std::size_t row = isUpper ? 0 : 1;
        rows.at(row).append(i);
        begin.at(row) = std::max(left, begin.at(row)) + caption.width + gap;
    }
    return rows;
}

// The width that all can have at most if together they have this much.
qreal widestOf(QList<qreal> widths, qreal available)
{
    std::ranges::sort(widths);
    for (qsizetype i = 0; i < widths.size(); ++i) {
        const auto left = static_cast<qreal>(widths.size() - i);
        if (widths.at(i) * left > available)
            return std::max(0.0, available / left);
        available -= widths.at(i);
    }
    return std::numeric_limits<qreal>::max();
}

QList<qreal> widthsIn(const QList<qsizetype>& row, const QList<Caption>& captions, qreal available)
{
    QList<qreal> others;
    qreal target = 0.0;
    for (const qsizetype i : row) {
        if (captions.at(i).isTarget)
            target = std::min(captions.at(i).width, available);
        else
            others.append(captions.at(i).width);
    }
    const qreal widest = widestOf(others, available - target);
    QList<qreal> widths;
    for (const qsizetype i : row)
        widths.append(captions.at(i).isTarget ? target : std::min(captions.at(i).width, widest));
    return widths;
}

QList<Span> placedInRow(const QList<qsizetype>& row, const QList<Caption>& captions, const Span& room, qreal gap)
{
    const QList<qreal> widths =
        widthsIn(row, captions, room.width() - gap * static_cast<qreal>(std::max<qsizetype>(row.size() - 1, 0)));
    QList<CaptionGroup> groups;
    for (qsizetype i = 0; i < row.size(); ++i) {
        groups.append({1, widths.at(i), captions.at(row.at(i)).centre - widths.at(i) / 2});
        const auto isTooClose = [&] {
            const CaptionGroup& before = groups.at(groups.size() - 2);
            return before.left(room) + before.width + gap > groups.last().left(room);
        };
        while (groups.size() > 1 && isTooClose()) {
            const CaptionGroup last = groups.takeLast();
            groups.last().append(last, gap);
        }
    }
    QList<Span> spans;
    for (const CaptionGroup& group : groups) {
        qreal left = group.left(room);
        for (qsizetype i = 0; i < group.count; ++i) {
            const qreal width = widths.at(spans.size());
            spans.append({left, left + width});
            left += width + gap;
        }
    }
    return spans;
}

} // namespace

QList<PlacedCaption> placeCaptions(const QList<Caption>& captions, const Span& room, qreal gap)
{
    const auto rows = distributed(captions, room, gap);
    QList<PlacedCaption> placed(captions.size());
    for (std::size_t row = 0; row < rows.size(); ++row) {
        const QList<Span> spans = placedInRow(rows.at(row), captions, room, gap);
        for (qsizetype i = 0; i < spans.size(); ++i)
            placed[rows.at(row).at(i)] = {static_cast<int>(row), spans.at(i)};
    }
    return placed;
}
