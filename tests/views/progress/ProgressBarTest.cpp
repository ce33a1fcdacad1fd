// SPDX-License-Identifier: GPL-3.0-or-later
#include "HoverLabel.h"
#include "MarkedProgressBar.h"
#include "MarkedTextLabel.h"
#include "Testing.h"
#include "Widgets.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QHelpEvent>
#include <QImage>
#include <QPointer>
#include <QToolTip>

#include <gmock/gmock.h>

#include <cmath>
#include <random>

TEST(ProgressBarGeometryTest, captionsOfAnyGoalsKeepApartAndInside)
{
    std::mt19937 random(20261120);
    std::uniform_real_distribution<double> fraction;
    for (int round = 0; round < 2000; ++round) {
        SCOPED_TRACE(round);
        const bool isShort = round % 2 == 0; // so short that there is room for all, wherever they are
        ProgressBarMeasures measures{.width = 375,
                                     .overhang = 40,
                                     .barHeight = 24,
                                     .progress = fraction(random),
                                     .labelWidth = 30,
                                     .markerLineWidth = 2,
                                     .markerLineHeight = 9,
                                     .captionHeight = 16,
                                     .markers = {}};
        for (auto count = random() % (isShort ? 6 : 9); count > 0; --count)
            measures.markers.append({.position = std::round(9 * fraction(random)) / 9,
                                     .caption = QString::number(random() % 9),
                                     .captionWidth = isShort ? 80 : 400 * fraction(random)});
        if (!measures.markers.isEmpty())
            measures.markers.last().isTarget = true;
        const ProgressBarGeometry geometry = progressBarGeometry(measures);
        ASSERT_TRUE(geometry.bar.contains(geometry.label));
        ASSERT_EQ(geometry.height, 24 + 9 + 22 + 16);
        const QRectF room(-40.001, 35, 455.002, geometry.height - 35);
        for (qsizetype i = 0; i < measures.markers.size(); ++i) {
            const auto& [line, caption] = geometry.markers.at(i);
            const auto& [position, text, width, isTarget] = measures.markers.at(i);
            const bool isShownByAnother =
                caption.isEmpty() && !isTarget && std::ranges::count_if(measures.markers, [&](const auto& marker) {
                                                      return marker.position == position && marker.caption == text;
                                                  }) > 1;
            ASSERT_NEAR(line.center().x(), 375 * position, 0.001);
            ASSERT_TRUE(caption.width() > width - 0.001 || isShownByAnother || !(isShort || isTarget));
            ASSERT_TRUE(caption.isEmpty() || room.contains(caption));
            for (qsizetype other = 0; other < i; ++other)
                ASSERT_FALSE(caption.intersects(geometry.markers.at(other).caption));
        }
    }
    // Under its marker as long as nothing is in the way, at whose side it stands otherwise.
    ProgressBarMeasures measures{
        .width = 375, .overhang = 40, .barHeight = 24, .captionHeight = 16, .markers = {{0.2, u"a"_s, 80, false}}};
    EXPECT_EQ(progressBarGeometry(measures).markers.at(0).caption.center().x(), 75);
    for (const auto& text : {u"b"_s, u"c"_s})
        measures.markers.append({0.2, text, 80, false});
    EXPECT_EQ(progressBarGeometry(measures).separators, QList<QPointF>({{75, 34}}));
}

TEST(MarkedProgressBarTest, drawsFillsAndMarkersInTheColourOfWhatIsReached)
{
    MarkedProgressBar::Contents contents;
    contents.progress = 0.5;
    contents.progressPrediction = 0.75;
    contents.barWidth = 400;
    contents.markers = {{0.25, {}}, {0.5, {}}, {0.75, {}}, {1, {}}};
    contents.progressColor = contents.reachedMarkerColor = Qt::green;
    contents.progressPredictionColor = contents.predictedMarkerColor = Qt::yellow;
    contents.backgroundColor = contents.markerColor = Qt::gray;
    MarkedProgressBar bar;
    bar.setContents(contents);
    bar.resize(480, 80);
    const QImage image = bar.grab().toImage();
    int x = 140;
    for (const QColor colour : {Qt::green, Qt::green, Qt::yellow, Qt::gray}) {
        EXPECT_EQ(image.pixelColor(x, 28), colour) << x;
        EXPECT_EQ(image.pixelColor(x - 15, 12), colour) << x;
        x += 100;
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
    moveTo(bar, {2, 2}); // beside the bar, where only captions reach
    EXPECT_TRUE(eventually([&] { return label.isNull(); }));
    contents.label.reset();
    bar.setContents(contents);
    EXPECT_EQ(bar.tooltipText(), u"You've reached 0.40 average days in office per week"_s);
}

TEST(MarkedProgressBarTest, aMarkerSaysItsWholeTextOnHover)
{
    MarkedProgressBar bar;
    MarkedProgressBar::Contents contents;
    const QString name = u"more words than there is room for "_s.repeated(9);
    contents.markers = {{0.5, name}, {1, u"a"_s}, {1, u"b"_s}};
    bar.setContents(contents);
    bar.resize(bar.sizeHint());
    const QRect shown = bar.barRect();
    for (const auto& [x, text] : {std::pair(shown.center().x(), name), {shown.right(), u"a, b"_s}}) {
        const QPoint place(x, 30);
        QHelpEvent hover(QEvent::ToolTip, place, bar.mapToGlobal(place));
        QApplication::sendEvent(&bar, &hover);
        EXPECT_EQ(QToolTip::text(), text);
    }
}

TEST(MarkedTextLabelTest, elidesWhatIsTooLongAndBeginsWhereTheLayoutDoes)
{
    MarkedTextLabel label;
    label.setLineCount(2);
    label.setMarkedText({{u"8 days"_s, true}});
    const QSize least = label.minimumSizeHint();
    label.resize(300, least.height());
    for (const auto direction : {Qt::LeftToRight, Qt::RightToLeft}) {
        label.setLayoutDirection(direction);
        const QImage left = label.grab({0, 0, 150, least.height()}).toImage();
        QImage blank = left;
        blank.fill(left.pixelColor(0, 0));
        EXPECT_EQ(left == blank, direction == Qt::RightToLeft);
    }
    EXPECT_FALSE(label.isElided());
    label.setMarkedText({{u"8 more days to reach a goal of many words "_s.repeated(9)}});
    EXPECT_TRUE(label.isElided());
    EXPECT_EQ(label.toolTip(), label.text());
    EXPECT_EQ(label.minimumSizeHint(), least);
}
