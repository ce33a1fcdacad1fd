// SPDX-License-Identifier: GPL-3.0-or-later
#include "CalendarView.h"
#include "MonthView.h"
#include "RuleLine.h"
#include "ViewTest.h"

class RuleLinesTest : public ViewTest {
protected:
    using Span = AttendanceRule::Span;

    RuleLinesTest() { show(page); }

    void add(const AttendanceRule& rule) { counting.addRule(rule); }
    void set(QDate date, DayState state) { marker.mark({{date, state}}, ChangedBy::Hand); }
    /// What a screen reader says of the lines, from top to bottom.
    [[nodiscard]] QStringList said() const
    {
        QCoreApplication::processEvents();
        QStringList texts;
        for (const auto* line : page.findChildren<RuleLine*>()) {
            if (line->isVisible())
                texts.append(line->accessibleName());
        }
        return texts;
    }

    const std::shared_ptr<Month> november = month(2026, 11);
    MonthView page{calendarParts};
    const CalendarView& grid = *page.findChild<CalendarView*>();
};

TEST_F(RuleLinesTest, followWhatTheyCount)
{
    EXPECT_TRUE(page.findChildren<RuleLine*>().isEmpty());
    const QPoint place = grid.mapTo(&page, QPoint());
    const auto at = [](int day) { return QDate(2026, 11, day); };
    const std::pair<std::function<void()>, QString> rows[]{
        {[&] { add({.name = u"Four"_s, .amount = 400, .unit = AttendanceRule::Unit::Days}); },
         u"0 of 4 days. 4 more by 30 November, 7 workdays left"_s},
        {[&] { set(at(3), DayState::IN_OFFICE); }, u"1 of 4 days. 3 more by 30 November, 7 workdays left"_s},
        {[&] { counting.addDaysOff({{at(30)}}); }, u"1 of 4 days. 3 more by 30 November, 6 workdays left"_s},
        {[&] { clock.beginDay(at(26)); }, u"1 of 4 days. Cannot be reached any more (1 short)"_s},
        {[&] { set(at(12), DayState::VACATION_DAY); }, u"1 of 4 days. Cannot be reached any more (1 short)"_s},
        {[&] { settings->vacationDaysCountAsInOffice = true; },
         u"2 of 4 days. 2 more by 30 November, 2 workdays left"_s},
        {[&] {
             marker.mark({{at(26), DayState::WILL_BE_IN_OFFICE}, {at(27), DayState::WILL_BE_IN_OFFICE}},
                         ChangedBy::Hand);
         },
         u"2 of 4 days. Reached with the planned days"_s},
        {[&] { viewSettings.showWillBeInOfficeStats = false; },
         u"2 of 4 days. 2 more by 30 November, 2 workdays left"_s},
        {[&] { page.previous(); }, u"0 of 4 days. Missed by 4"_s},
        {[&] { viewSettings.showProgressBars = false; }, {}},
        {[&] { viewSettings.showProgressBars = true; }, u"0 of 4 days. Missed by 4"_s},
    };
    for (int row = 1; const auto& [change, expected] : rows) {
        change();
        EXPECT_EQ(said().join(u'|'), expected.isEmpty() ? QString() : u"Four: "_s + expected) << "row " << row;
        EXPECT_EQ(grid.mapTo(&page, QPoint()), place) << "row " << row;
        ++row;
    }
    viewSettings.showMonthStats = false;
    EXPECT_TRUE(said().isEmpty());
}

TEST_F(RuleLinesTest, areThoseOfThePeriodThatIsShown)
{
    add({.name = u"W"_s, .span = Span::Week, .from = QDate(2026, 10, 1)});
    add({.name = u"Q"_s, .amount = 3900, .unit = AttendanceRule::Unit::Days, .span = Span::Quarter, .firstMonth = 5});
    add({.name = u"Y"_s, .span = Span::Year, .until = QDate(2026, 12, 31)});
    for (const int day : {6, 7, 8})
        set({2026, 10, day}, DayState::IN_OFFICE);
    viewSettings.firstDayOfWeek = Qt::Monday;
    // A month to turn to, and the beginnings of its lines.
    const std::pair<YearMonth, QString> rows[]{
        {{2026, 11}, u"W: 0 of 3 days|Q: 0 of 39 days|Y: 3 of 157 days"_s},
        {{2026, 10}, u"W: Reached in 1 of 4 weeks|Q: 0 of 39 days|Y: 3 of 157 days"_s},
        {{2026, 9}, u"Q: 3 of 39 days|Y: 3 of 157 days"_s},
        {{2027, 2}, u"W: 0 of 3 days|Q: 0 of 39 days"_s},
    };
    for (const auto& [month, expected] : rows) {
        page.showPeriod(month);
        QStringList beginnings;
        for (const QString& text : said())
            beginnings.append(text.section(u". "_s, 0, 0));
        EXPECT_EQ(beginnings.join(u'|'), expected) << month.year << ' ' << month.month;
    }
    EXPECT_EQ(context.fetchMonths().size(), 9); // of the three quarters that were shown
}
