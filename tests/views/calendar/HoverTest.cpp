// SPDX-License-Identifier: GPL-3.0-or-later
#include "CalendarViewTest.h"
#include "HoverLabel.h"
#include "MarkedProgressBar.h"

#include <QElapsedTimer>
#include <QPointer>
#include <QPropertyAnimation>

class HoverTest : public CalendarViewTest {
protected:
    void rest(int day) { moveTo(view, inWindow(dayButton(view, day))); }
    [[nodiscard]] QList<HoverLabel*> labels() const { return view.findChildren<HoverLabel*>(); }
};

TEST_F(HoverTest, theStateFadesInAboveTheNeighboursAndGoes)
{
    rest(friday);
    ASSERT_EQ(labels().size(), 1);
    const QPointer<HoverLabel> label = labels().first();
    EXPECT_EQ(label->text(), u"Unknown"_s);
    EXPECT_EQ(label->findChild<QPropertyAnimation*>()->startValue().toReal(), 0.0);
    EXPECT_TRUE(eventually([&] { return label->opacity() == 1.0; }));
    click(dayButton(view, friday));
    EXPECT_EQ(label->text(), u"In the Office"_s);
    // Nine tenths of gray over the blue of a day above.
    const QPoint place = label->geometry().topLeft() + QPoint(6, label->height() / 2);
    EXPECT_TRUE(dayButton(view, 13).geometry().contains(place) || dayButton(view, 12).geometry().contains(place));
    EXPECT_LT(view.grab().toImage().pixelColor(place).saturation(), 100);
    dayButton(view, 19).setTooltipText({});
    rest(19);
    EXPECT_TRUE(dayButton(view, 19).showTooltip()); // and has none
    EXPECT_TRUE(eventually([&] { return label.isNull() && labels().isEmpty(); }));
}

TEST_F(HoverTest, theSettingKeepsNewLabelsAwayButLeavesTheShownOne)
{
    rest(friday);
    viewSettings.showStatusLabelOnHover = false;
    rest(19);
    EXPECT_TRUE(dayButton(view, friday).showTooltip());
    EXPECT_FALSE(dayButton(view, 19).showTooltip());
    view.setMonth(november);
    EXPECT_TRUE(eventually([&] { return labels().isEmpty(); }));
}

TEST(HoverLabelRectTest, standsOverTheAnchorAndInsideTheWindow)
{
    const QRect window(0, 0, 300, 200);
    const std::tuple<QRect, int, int> rows[]{
        // 1 for below the anchor, -1 for above it
        {{100, 100, 40, 20}, 90, -1}, {{0, 100, 40, 20}, 0, -1},  {{270, 100, 30, 20}, 240, -1},
        {{100, 10, 40, 20}, 90, 1},   {{100, 5, 40, 190}, 90, 0},
    };
    for (const auto& [anchor, left, side] : rows) {
        const QRect place = hoverLabelRect({60, 20}, anchor, window);
        SCOPED_TRACE(testing::Message() << place.x() << ',' << place.y());
        EXPECT_TRUE(window.contains(place));
        EXPECT_EQ(place.left(), left);
        EXPECT_EQ(int(place.top() > anchor.bottom()) - int(place.bottom() < anchor.top()), side);
    }
    EXPECT_EQ(hoverLabelRect({400, 20}, {100, 100, 40, 20}, window).left(), 0);
}

TEST_F(HoverTest, theBarTellsTheAverageAfterADelay)
{
    const std::pair<std::optional<double>, QString> rows[]{
        {2.504, u"You've reached 2.50 average days in office per week"_s},
        {std::nullopt, u"You've reached 0.40 average days in office per week"_s},
    };
    for (const auto& [label, text] : rows) {
        MarkedProgressBar::Contents contents;
        contents.progress = 0.4;
        contents.label = label;
        MarkedProgressBar bar;
        bar.setContents(contents);
        show(bar);
        QElapsedTimer sinceEntry;
        sinceEntry.start();
        moveTo(bar, bar.barRect().center());
        QPointer<HoverLabel> shown;
        ASSERT_TRUE(eventually([&] { return (shown = bar.findChild<HoverLabel*>()) != nullptr; }));
        EXPECT_GE(sinceEntry.elapsed(), 280); // the timers of Qt may be a little early
        EXPECT_EQ(shown->text(), text);
        moveTo(bar, {2, 2}); // beside the bar, where only captions reach
        EXPECT_TRUE(eventually([&] { return shown.isNull(); }));
    }
}
