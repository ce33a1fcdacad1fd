// SPDX-License-Identifier: GPL-3.0-or-later
#include "CalendarViewTest.h"
#include "HoverLabel.h"
#include "StillStyle.h"

#include <QEnterEvent>
#include <QPropertyAnimation>
#include <QScrollArea>
#include <QScrollBar>

class HoverTest : public CalendarViewTest {
protected:
    void rest(int day)
    {
        const QPoint place = inWindow(dayButton(view, day));
        QCursor::setPos(view.window()->mapToGlobal(place));
        moveTo(view, place);
    }
    [[nodiscard]] QList<HoverLabel*> labels() const
    {
        return view.window()->findChildren<HoverLabel*>(Qt::FindDirectChildrenOnly);
    }
};

TEST_F(HoverTest, theStateFadesInAboveTheNeighboursAndGoes)
{
    QEnterEvent withoutMove({}, {}, {}); // as after a menu that has closed
    QApplication::sendEvent(&dayButton(view, friday), &withoutMove);
    EXPECT_EQ(labels().size(), 0);
    rest(friday);
    ASSERT_EQ(labels().size(), 1);
    const HoverLabel& label = *labels().first();
    EXPECT_EQ(label.text(), u"Unknown"_s);
    EXPECT_EQ(label.findChild<QPropertyAnimation*>()->startValue().toReal(), 0.0);
    EXPECT_TRUE(eventually([&] { return label.opacity() == 1.0; }));
    click(dayButton(view, friday));
    EXPECT_EQ(label.text(), u"In the Office"_s);
    // Nine tenths of gray over the blue of the day above and the one to its left.
    EXPECT_LT(view.grab().toImage().pixelColor(label.pos() + QPoint(6, label.height() / 2)).saturation(), 100);
    dayButton(view, 19).setTooltipText({});
    rest(19);
    EXPECT_TRUE(eventually([&] { return labels().isEmpty(); }));
    // The setting leaves the label that is shown, and keeps new ones away.
    rest(friday);
    viewSettings.showStatusLabelOnHover = false;
    rest(18);
    ASSERT_EQ(labels().size(), 1);
    EXPECT_EQ(labels().first()->findChild<QPropertyAnimation*>()->endValue().toReal(), 1.0);
    view.setMonth(november);
    EXPECT_TRUE(eventually([&] { return labels().isEmpty(); }));
}

TEST_F(HoverTest, aDayOffAndAKindOfAbsenceAreNamedAsFarAsThereIsRoom)
{
    marker.markAbsence(*november, friday - 1, AbsenceKind::sick);
    counting.addDaysOff(
        {{{2026, 11, friday}, u"Harvest"_s}, {{2026, 11, saturday}, QString(200, u'x')}, {{2026, 11, 6}}});
    rest(6);
    EXPECT_EQ(labels().last()->text(), u"Unknown · Day Off"_s);
    rest(friday);
    EXPECT_EQ(labels().last()->text(), u"Out of Office (Sick) · Harvest"_s);
    rest(saturday);
    EXPECT_TRUE(labels().last()->text().startsWith(u"Unknown · xxx"));
    EXPECT_LE(labels().last()->width(), view.width());
}

TEST_F(HoverTest, theStateDoesNotFadeInForPeopleWhoWantNoAnimations)
{
    QApplication::setStyle(new StillStyle);
    rest(friday);
    EXPECT_EQ(labels().first()->opacity(), 1.0);
    QApplication::setStyle(u"Fusion"_s);
}

TEST_F(HoverTest, theOnlyLabelIsThatOfTheDayUnderThePointerAlsoAfterScrolling)
{
    QScrollArea area;
    area.setWidget(&view);
    area.resize(400, 200);
    show(area);
    mark(*november, 13, DayState::VACATION_DAY);
    rest(6);
    auto& bar = *area.verticalScrollBar();
    const int row = dayButton(view, 13).y() - dayButton(view, 6).y();
    for (const auto& [scrolled, text] : {std::pair(0, u"Unknown"_s), {row, u"Vacation Day"_s}, {0, u"Unknown"_s}}) {
        bar.setValue(scrolled);
        EXPECT_TRUE(eventually([&] { return labels().first()->text() == text; })) << qPrintable(text);
        EXPECT_EQ(labels().size(), 1);
    }
    area.takeWidget();
}

TEST(HoverLabelRectTest, isOverTheAnchorAndInsideTheWindow)
{
    const std::pair<QRect, QRect> rows[]{
        {{100, 100, 40, 20}, {90, 79, 60, 20}},  {{0, 100, 40, 20}, {0, 79, 60, 20}},
        {{270, 100, 30, 20}, {240, 79, 60, 20}}, {{100, 10, 40, 20}, {90, 31, 60, 20}},
        {{100, 5, 40, 190}, {90, 180, 60, 20}},  {{100, 100, 40, 20}, {0, 79, 400, 20}},
    };
    for (const auto& [anchor, label] : rows)
        EXPECT_TRUE(hoverLabelRect(label.size(), anchor, {0, 0, 300, 200}) == label) << anchor.x() << ',' << anchor.y();
}
