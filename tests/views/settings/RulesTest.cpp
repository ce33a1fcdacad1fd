// SPDX-License-Identifier: GPL-3.0-or-later
#include "ComboBox.h"
#include "GoalsPage.h"
#include "RuleEditor.h"
#include "ViewTest.h"

#include <QLineEdit>
#include <QMenu>

class RulesTest : public ViewTest {
protected:
    using Rule = AttendanceRule;

    RulesTest()
    {
        page.resize(620, 800);
        show(page);
    }

    [[nodiscard]] QAbstractButton& button(const char* name) const { return named<QAbstractButton>(page, name); }
    void type(const char* field, const QString& text) { named<QLineEdit>(page, field).setText(text); }
    void choose(const char* name, int data)
    {
        auto& box = named<ComboBox>(page, name);
        box.setCurrentIndex(box.findData(data));
    }
    void startWith(const QString& entry)
    {
        button("addRule").click();
        auto* menu = page.findChild<QMenu*>();
        const auto actions = menu->actions();
        menu->close();
        (*std::ranges::find(actions, entry, &QAction::text))->trigger();
    }
    /// Opens the editor of the first rule.
    void edit()
    {
        const auto buttons = page.findChildren<QAbstractButton*>();
        const auto isEdit = [](auto* each) { return each->accessibleName().startsWith(u"Edit the rule"_s); };
        (*std::ranges::find_if(buttons, isEdit))->click();
    }
    [[nodiscard]] QList<Rule> rules() const { return counting.rules(); }

    const QDate today{2026, 11, 20};
    GoalsPage page{*settings, counting, context, clock, viewSettings};
};

TEST_F(RulesTest, aPresetIsFilledInAndAdded)
{
    startWith(u"At most 34 days abroad a year"_s);
    EXPECT_EQ(named<QLabel>(page, "ruleSentence").text(), u"At most 34 days out of office (Abroad) each year"_s);
    EXPECT_EQ(named<QLabel>(page, "ruleNow").text(),
              u"1 January 2026 to 31 December 2026: 0 of at most 34 days. 34 more allowed until 31 December."_s);
    EXPECT_EQ(counting.absenceKinds().size(), 4);
    click(button("saveRule"));
    ASSERT_EQ(rules().size(), 1);
    EXPECT_EQ(counting.absenceKinds().last().name, u"Abroad"_s);
    EXPECT_EQ(rules().first().absenceKind, counting.absenceKinds().last().id);
    EXPECT_EQ(rules().first().name, u"At most 34 days abroad a year"_s);
}

TEST_F(RulesTest, whatIsRefusedChangesNothing)
{
    counting.addRule({.name = u"Three"_s});
    const QList<Rule> before = rules();
    edit();
    choose("ruleSpan", static_cast<int>(Rule::Span::LastWeeks));
    const QString number =
        u"How many must be a number above 0 and up to 5, because an average counts weeks of 5 workdays"_s;
    const std::tuple<const char*, QString, QString> rows[]{
        {"ruleAmount", u"5.5"_s, number},
        {"ruleAmount", u"0"_s, number},
        {"ruleAmount", {}, number},
        {"ruleWeeks", u"54"_s, u"Weeks must be a whole number between 1 and 53"_s},
        {"ruleFrom", u"32/11/2026"_s, u"This is not a date. Type one like 31/12/2026."_s},
        {"ruleFrom", u"1/11/1999"_s, u"The year must be between 2000 and 2099."_s},
        {"ruleUntil", u"1/11/2026"_s, u"The last day must not be before the first"_s},
    };
    for (const auto& [field, text, problem] : rows) {
        type("ruleAmount", u"3"_s);
        type("ruleWeeks", u"8"_s);
        type("ruleFrom", u"2/11/2026"_s);
        type(field, text);
        EXPECT_EQ(named<QLabel>(page, "ruleProblem").text(), problem) << field << ' ' << qPrintable(text);
        click(button("saveRule"));
        EXPECT_EQ(rules(), before);
        EXPECT_EQ(page.focusWidget()->objectName(), QString::fromLatin1(field));
    }
    press(page, Qt::Key_Escape);
    EXPECT_EQ(page.currentIndex(), 0);
    EXPECT_EQ(rules(), before);
}

TEST_F(RulesTest, aChangeHoldsFromTodayOrAlways)
{
    counting.addRule({.name = u"Three"_s});
    edit();
    type("ruleName", u"Days"_s);
    click(button("saveRule")); // which asks nothing
    EXPECT_EQ(rules().first().name, u"Days"_s);
    edit();
    type("ruleAmount", u"4"_s);
    click(button("saveRule"));
    press(page, Qt::Key_Escape); // back to the fields
    click(button("saveRule"));
    click(button("always"));
    ASSERT_EQ(rules().size(), 1);
    EXPECT_EQ(rules().first().amount, 400);
    EXPECT_EQ(rules().first().from, std::nullopt);
    edit();
    type("ruleAmount", u"2.5"_s);
    click(button("saveRule"));
    click(button("since"));
    ASSERT_EQ(rules().size(), 2);
    EXPECT_EQ(rules().first().until, today.addDays(-1));
    EXPECT_EQ(std::pair(rules().last().amount, rules().last().from), std::pair(250, std::optional(today)));
    EXPECT_TRUE(shownTexts(page).contains(u"At least 4 days a week on average, each month, until 19 November 2026"_s));
    counting.addRule({.name = u"At least 3 days a week on average, each month"_s, .until = today});
    QCoreApplication::processEvents(); // which shows the row
    EXPECT_TRUE(shownTexts(page).contains(u"until 20 November 2026"_s)) << "what the name does not say";
}

TEST_F(RulesTest, aNameThatFollowsFromARuleChangesWithIt)
{
    const auto name = [this] { return named<QLineEdit>(page, "ruleName").text(); };
    startWith(u"12 days a month"_s);
    type("ruleAmount", u"10"_s);
    EXPECT_EQ(name(), u"At least 10 days each month"_s);
    choose("ruleSpan", static_cast<int>(Rule::Span::Quarter));
    EXPECT_EQ(name(), u"10 days a quarter"_s);
    click(button("saveRule"));
    edit();
    type("ruleAmount", u"11"_s);
    EXPECT_EQ(name(), u"At least 11 days each quarter"_s);
    QTest::keyClick(&named<QLineEdit>(page, "ruleName"), Qt::Key_End);
    QTest::keyClicks(&named<QLineEdit>(page, "ruleName"), u"!"_s);
    type("ruleAmount", u"9"_s);
    EXPECT_EQ(name(), u"At least 11 days each quarter!"_s);
}

TEST_F(RulesTest, itIsAskedOnlyIfItMakesADifference)
{
    const QDate yesterday = today.addDays(-1), tomorrow = today.addDays(1);
    // When the rule held, when it is to hold, and the first day that the question offers.
    const std::tuple<Rule, Rule, std::optional<QDate>> rows[]{
        {{}, {}, today},
        {{.from = yesterday}, {.from = yesterday}, today},
        {{.from = today}, {.from = today}, {}},
        {{.until = yesterday}, {.until = yesterday}, {}},
        {{}, {.until = yesterday}, {}},
        {{}, {.from = tomorrow}, tomorrow},
    };
    for (const auto& [before, after, expected] : rows) {
        EXPECT_EQ(dayOfChange(before, after, today), std::nullopt);
        Rule changed = after;
        changed.amount = 400;
        EXPECT_EQ(dayOfChange(before, changed, today), expected);
    }
}
