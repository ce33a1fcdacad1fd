// SPDX-License-Identifier: GPL-3.0-or-later
#include "HoverLabel.h"
#include "MarkedProgressBar.h"
#include "Testing.h"
#include "Widgets.h"

#include <QElapsedTimer>
#include <QImage>
#include <QPointer>

#include <gmock/gmock.h>

#include <random>

namespace {

ProgressBarGeometry geometryOf(const QList<ProgressBarMeasures::Marker>& markers, double progress = 0.0)
{
    return progressBarGeometry({.width = 375.0,
                                .barHeight = 24.0,
                                .progress = progress,
                                .prediction = 0.0,
                                .labelWidth = 30.0,
                                .markerLineWidth = 2.0,
                                .markerLineHeight = 9.0,
                                .captionHeight = 16.0,
                                .markers = markers});
}

} // namespace

TEST(PlaceCaptionsTest, takesTheUpperRowAndThenTheLowerOne)
{
    const std::tuple<const char*, QList<Span>, QList<PlacedCaption>> rows[]{
        {"overlapping, not in order", {{30, 70}, {0, 40}}, {{1, {30, 70}}, {0, {0, 40}}}},
        {"back to the upper row", {{0, 40}, {30, 90}, {60, 99}}, {{0, {0, 40}}, {1, {30, 90}}, {0, {60, 99}}}},
        {"cut", {{0, 40}, {10, 50}, {20, 80}}, {{0, {0, 40}}, {1, {10, 50}}, {0, {48, 80}}}},
    };
    for (const auto& [name, wanted, placed] : rows)
        EXPECT_TRUE(placeCaptions(wanted) == placed) << name;
}

TEST(ProgressBarGeometryTest, captionsOfAnyGoalsKeepApartAndInside)
{
    std::mt19937 random(20261120);
    std::uniform_real_distribution<double> fraction;
    for (int round = 0; round < 2000; ++round) {
        SCOPED_TRACE(round);
        QList<ProgressBarMeasures::Marker> markers;
        for (auto count = random() % 8; count > 0; --count)
            markers.append({fraction(random), 150.0 * fraction(random)});
        const ProgressBarGeometry geometry = geometryOf(markers, fraction(random));
        ASSERT_EQ(geometry.markers.size(), markers.size());
        ASSERT_TRUE(geometry.bar.contains(geometry.label));
        const QRectF room(-40.001, 35, 455.002, geometry.height - 35);
        for (qsizetype i = 0; i < markers.size(); ++i) {
            const auto& [line, caption] = geometry.markers.at(i);
            ASSERT_NEAR(line.center().x(), 375 * markers.at(i).position, 0.001);
            ASSERT_TRUE(caption.isEmpty() || room.contains(caption));
            ASSERT_LE(caption.width(), markers.at(i).captionWidth + 0.001);
            for (qsizetype other = 0; other < i; ++other)
                ASSERT_FALSE(caption.intersects(geometry.markers.at(other).caption));
        }
    }
    // One that is alone is whole and under its marker. Those that crowd each other keep to the frame under their own.
    EXPECT_EQ(geometryOf({{0.4, 120}}).markers.first().caption.center().x(), 150);
    for (const auto& [line, caption] : geometryOf({{0.4, 120}, {0.5, 120}, {0.6, 120}}).markers)
        EXPECT_TRUE(caption.isEmpty() || QRectF(line.center().x() - 40, 0, 80, 99).contains(caption));
}

TEST(MarkedProgressBarTest, drawsFillsAndMarkersInTheColourOfWhatIsReached)
{
    const QColor reached(Qt::green), predicted(Qt::yellow), other(Qt::gray);
    const std::tuple<double, double, QList<QColor>> rows[]{
        {0.5, 0.75, {reached, reached, predicted, other}},
        {0.75, 0.25, {reached, reached, reached, other}},
    };
    for (const auto& [progress, prediction, colours] : rows) {
        MarkedProgressBar::Contents contents;
        contents.progress = progress;
        contents.progressPrediction = prediction;
        contents.markers = {{0.25, {}}, {0.5, {}}, {0.75, {}}, {1, {}}};
        contents.progressColor = contents.reachedMarkerColor = reached;
        contents.progressPredictionColor = contents.predictedMarkerColor = predicted;
        contents.backgroundColor = contents.markerColor = other;
        MarkedProgressBar bar;
        bar.setContents(contents);
        bar.resize(480, 80);
        const QImage image = bar.grab().toImage();
        for (int i = 0; i < 4; ++i) {
            SCOPED_TRACE(testing::Message() << progress << ", " << prediction << ": " << i);
            EXPECT_EQ(image.pixelColor(140 + 100 * i, 28), colours.at(i));
            EXPECT_EQ(image.pixelColor(125 + 100 * i, 12), colours.at(i));
        }
    }
}

TEST(MarkedProgressBarTest, showsTheAverageAfterADelay)
{
    MarkedProgressBar bar;
    MarkedProgressBar::Contents contents;
    contents.progress = 0.4;
    contents.label = 2.504;
    bar.setContents(contents);
    show(bar);
    QElapsedTimer sinceEntry;
    sinceEntry.start();
    moveTo(bar, bar.barRect().center());
    QPointer<HoverLabel> label;
    ASSERT_TRUE(eventually([&] { return (label = bar.findChild<HoverLabel*>()) != nullptr; }));
    EXPECT_GE(sinceEntry.elapsed(), 280); // the timers of Qt may be a little early
    EXPECT_EQ(label->text(), u"You've reached 2.50 average days in office per week"_s);
    contents.label.reset();
    bar.setContents(contents);
    EXPECT_EQ(label->text(), u"You've reached 0.40 average days in office per week"_s);
    moveTo(bar, {2, 2}); // beside the bar, where only captions reach
    EXPECT_TRUE(eventually([&] { return label.isNull(); }));
}
