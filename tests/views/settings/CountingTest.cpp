// SPDX-License-Identifier: GPL-3.0-or-later
#include "ComboBox.h"
#include "DateField.h"
#include "DaysOffTree.h"
#include "IconButton.h"
#include "Page.h"
#include "SettingsView.h"
#include "SideTabs.h"
#include "Switch.h"
#include "ViewTest.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QFileDialog>
#include <QShortcut>
#include <QTextEdit>

#include <fstream>
#include <memory>

class CountingTest : public ViewTest {
protected:
    void open()
    {
        view().resize(740, 1400);
        show(view());
        view().findChild<SideTabs*>()->setCurrentIndex(1);
        QApplication::processEvents(); // which lays the page out
    }
    [[nodiscard]] QAbstractButton& button(const char* name) { return named<QAbstractButton>(view(), name); }
    template <class Control> [[nodiscard]] Control& called(const QString& name)
    {
        const auto controls = view().findChildren<Control*>();
        return **std::ranges::find_if(
            controls, [&](const Control* each) { return each->accessibleName() == name && each->isVisible(); });
    }
    static void type(QLineEdit& field, const QString& text)
    {
        field.setFocus();
        field.selectAll();
        QTest::keyClicks(&field, text);
    }
    [[nodiscard]] bool isShown(const QString& text) { return !shownTexts(view()).filter(text).isEmpty(); }
    [[nodiscard]] static QStringList rowsOf(const QTreeView& tree)
    {
        QStringList rows;
        for (QModelIndex row = tree.model()->index(0, 0); row.isValid(); row = tree.indexBelow(row))
            rows.append(row.data().toString());
        return rows;
    }
    [[nodiscard]] DaysOffTree& list() { return named<DaysOffTree>(view(), "daysOff"); }
    [[nodiscard]] DaysOffTree& review() { return *view().findChildren<DaysOffTree*>(u"reviewedDays"_s).last(); }
    /// Turns the checkbox of the first row that begins so.
    void turn(const QString& start)
    {
        auto& model = *review().model();
        const auto found =
            model.match(model.index(0, 0), Qt::DisplayRole, start, 1, Qt::MatchRecursive | Qt::MatchStartsWith);
        review().setCurrentIndex(found.value(0));
        review().setFocus();
        press(view(), Qt::Key_Space);
    }
    void chooseFile(const QString& name, const std::string& contents)
    {
        const QString file = folder.filePath(name);
        std::ofstream(file.toStdString()) << contents;
        click(button("chooseFile"));
        auto& dialog = named<QFileDialog>(view(), "calendarFile");
        EXPECT_TRUE(dialog.isVisible());
        Q_EMIT dialog.fileSelected(file);
        dialog.close();
    }
    [[nodiscard]] QString offOn(const QDate& date) const
    {
        const DayOff* dayOff = counting.counting().value().dayOff(date);
        return dayOff == nullptr ? QString() : dayOff->name;
    }

    const QDate newYear{2027, 1, 1}, epiphany{2027, 1, 6}, allSaints{2027, 11, 1};
    [[nodiscard]] SettingsView& view()
    {
        if (!m_view)
            m_view = std::make_unique<SettingsView>(SettingsParts{*settings, wifiClient, locationManager.defaultValue(),
                                                                  check, launchAtLogin, backups, context, counting,
                                                                  clock, viewSettings});
        return *m_view;
    }

private:
    std::unique_ptr<SettingsView> m_view;
};

TEST_F(CountingTest, bothWaysToCountVacationExcludeEachOther)
{
    open();
    auto& toggle = named<Switch>(view(), "leaveOutVacation");
    settings->vacationDaysCountAsInOffice = true;
    click(toggle);
    EXPECT_TRUE(counting.leavesOutVacation());
    EXPECT_FALSE(settings->vacationDaysCountAsInOffice);
    settings->vacationDaysCountAsInOffice = true;
    EXPECT_FALSE(toggle.isChecked());
}

TEST_F(CountingTest, kindsOfAbsenceAreTreatedAddedAndRemoved)
{
    open();
    auto& sick = called<ComboBox>(u"How Sick counts"_s);
    const auto said = [&sick](auto text) { return QAccessible::queryAccessibleInterface(&sick)->text(text); };
    EXPECT_TRUE((said(QAccessible::Name) + said(QAccessible::Description)).contains(u"How Sick counts"_s));
    sick.setFocus();
    press(view(), Qt::Key_N); // finds "Not a Workday"
    EXPECT_EQ(counting.absenceKinds().first().treatment, Treatment::LeftOut);
    auto& name = named<QLineEdit>(view(), "newKind");
    // What is typed, what is said about it, and how many kinds there are then.
    const std::tuple<QString, QString, int> rows[]{{u" "_s, u"Type a name"_s, 4},
                                                   {u"sick"_s, u"There is a kind of this name"_s, 4},
                                                   {u" Jury  Duty "_s, {}, 5},
                                                   {u"Care"_s, {}, 6}};
    for (const auto& [typed, problem, count] : rows) {
        type(name, typed);
        press(view(), Qt::Key_Return);
        EXPECT_EQ(counting.absenceKinds().size(), count) << qPrintable(typed);
        EXPECT_TRUE(problem.isEmpty() || isShown(problem)) << qPrintable(typed);
        EXPECT_EQ(name.text(), problem.isEmpty() ? QString() : typed);
    }
    EXPECT_TRUE(isShown(u"its days stay out of office"_s));
    auto& duty = called<IconButton>(u"Remove Jury Duty"_s);
    duty.setFocus();
    press(view(), Qt::Key_Space);
    EXPECT_EQ(view().focusWidget(), &called<IconButton>(u"Remove Care"_s));
    press(view(), Qt::Key_Space);
    EXPECT_EQ(view().focusWidget(), &name);
    EXPECT_EQ(counting.absenceKinds().size(), 4);
    EXPECT_EQ(sick.currentText(), u"Not a Workday"_s);
}

TEST_F(CountingTest, ownWorkdaysHoldFromADate)
{
    open();
    auto& from = named<DateField>(view(), "workdaysFrom");
    EXPECT_EQ(from.date(), QDate(2026, 11, 1));
    EXPECT_TRUE(isShown(u"Monday to Friday are workdays."_s));
    click(called<QAbstractButton>(u"Friday"_s));
    type(from, u"31 Feb 2026"_s);
    click(button("setWorkdays"));
    EXPECT_TRUE(isShown(u"This is not a date. Type one like 31/12/2026."_s));
    type(from, u"1/3/2026"_s);
    EXPECT_FALSE(isShown(u"This is not a date"_s));
    press(view(), Qt::Key_Return);
    EXPECT_TRUE(isShown(u"Mon–Thu from 1 March 2026"_s));
    EXPECT_TRUE(isShown(u"Monday to Friday before that"_s));
    EXPECT_FALSE(counting.counting().value().isWorkday({2026, 11, 20}));
    for (const QString& day : {u"Tuesday"_s, u"Thursday"_s, u"Wednesday"_s, u"Monday"_s})
        click(called<QAbstractButton>(day));
    click(button("setWorkdays"));
    EXPECT_TRUE(isShown(u"Choose at least one day"_s));
    for (const QString& day : {u"Monday"_s, u"Tuesday"_s, u"Sunday"_s})
        click(called<QAbstractButton>(day));
    click(button("setWorkdays"));
    EXPECT_TRUE(isShown(u"Mon, Tue, Sun from 1 March 2026"_s)) << "in the place of the others";
    auto& removal = called<IconButton>(u"Remove Mon, Tue, Sun from 1 March 2026"_s);
    removal.setFocus();
    press(view(), Qt::Key_Space);
    EXPECT_EQ(view().focusWidget(), &from);
    EXPECT_TRUE(counting.workWeeks().isEmpty());
}

TEST(DateFieldTest, datesAreReadAsTheLocaleWritesThem)
{
    const std::tuple<const char*, QString, QDate> rows[]{{"de_DE", u"1.3.2026"_s, {2026, 3, 1}},
                                                         {"de_DE", u" 01.03.26"_s, {2026, 3, 1}},
                                                         {"de_DE", u"31.2.2026"_s, {}},
                                                         {"de_DE", u"1.3.1926"_s, {}},
                                                         {"en_US", u"3/1/2026"_s, {2026, 3, 1}},
                                                         {"en_GB", u"1/3/26"_s, {2026, 3, 1}},
                                                         {"sv_SE", u"2026-03-01"_s, {2026, 3, 1}},
                                                         {"fr_FR", u"2026-03-01"_s, {2026, 3, 1}},
                                                         {"fr_FR", u"tomorrow"_s, {}}};
    for (const auto& [locale, typed, date] : rows) {
        const auto scope = scopedLocale(QLocale(QLatin1String(locale)));
        DateField field(u"From"_s);
        field.setText(typed);
        EXPECT_EQ(field.date().value_or(QDate()), date) << locale << qPrintable(typed);
        field.setDate({2026, 12, 31});
        EXPECT_EQ(field.date(), QDate(2026, 12, 31)) << locale;
    }
}

TEST_F(CountingTest, daysOffAreAddedByHandAndTakenOutTogether)
{
    counting.addDaysOff({{QDate(2025, 12, 24), u"Christmas Eve"_s}});
    open();
    EXPECT_EQ(rowsOf(list()), (QStringList{u"2025: 1 day off"_s, u"Wed 24 December, Christmas Eve, Added by hand"_s}));
    auto& date = named<QLineEdit>(view(), "dayOffDate");
    for (const QString& typed : {u"24/12"_s, u"24/12/2026"_s, u"31/12/2026"_s}) {
        type(date, typed);
        type(named<QLineEdit>(view(), "dayOffName"), u"Bridge"_s);
        press(view(), Qt::Key_Return);
        EXPECT_EQ(isShown(u"This is not a date"_s), typed == u"24/12"_s);
    }
    EXPECT_EQ(offOn({2026, 12, 31}), u"Bridge"_s);
    EXPECT_FALSE(button("takeOut").isEnabled());
    EXPECT_THAT(rowsOf(list()), testing::ElementsAre(u"2025: 1 day off"_s, u"2026: 2 days off"_s,
                                                     u"Thu 24 December, Bridge, Added by hand"_s,
                                                     u"Thu 31 December, Bridge, Added by hand"_s));
    list().setFocus();
    press(view(), Qt::Key_Up, Qt::ShiftModifier);
    EXPECT_EQ(named<QAbstractButton>(view(), "takeOut").text(), u"Take Out 2 Days Off"_s);
    auto* cell = QAccessible::queryAccessibleInterface(&list())->focusChild();
    EXPECT_EQ(cell->text(QAccessible::Name), u"Thursday, 24 December 2026, Bridge, Added by hand"_s);
    press(view(), Qt::Key_Delete);
    EXPECT_TRUE(isShown(u"2 days off were taken out."_s));
    EXPECT_EQ(list().selectedDates(), QList{QDate(2025, 12, 24)}) << "the neighbour";
    press(view(), Qt::Key_Delete);
    EXPECT_TRUE(counting.daysOff().isEmpty());
    EXPECT_TRUE(isShown(u"There are no days off."_s));
    EXPECT_EQ(view().focusWidget(), &date);
}

TEST_F(CountingTest, everyHolidayIsReviewedBeforeItCounts)
{
    counting.addDaysOff({{epiphany, u"Company day"_s}});
    open();
    button("chooseHolidays").setFocus();
    press(view(), Qt::Key_Space);
    auto& country = named<ComboBox>(view(), "country");
    EXPECT_EQ(view().focusWidget(), &country);
    press(view(), Qt::Key_G);
    press(view(), Qt::Key_Tab);
    press(view(), Qt::Key_B);
    press(view(), Qt::Key_A);
    press(view(), Qt::Key_V);
    EXPECT_EQ(named<ComboBox>(view(), "region").currentText(), u"Bavaria"_s);
    EXPECT_THAT(rowsOf(review()),
                testing::IsSupersetOf({u"Fri 1 January, New Year's Day"_s, u"Wed 6 January, Epiphany, already off"_s,
                                       u"Sat 1 May, Labour Day, not a workday"_s}));
    turn(u"2026"_s); // all of the year
    EXPECT_EQ(rowsOf(review()).first(), u"2026: 0 days off"_s);
    turn(u"2028"_s);
    const QString all = button("addDays").text();
    EXPECT_EQ(all, u"Add 12 Days Off"_s) << "13 holidays of 2027, of which one is a day off already";
    turn(u"Fri 1 January"_s);
    EXPECT_TRUE(offOn(newYear).isEmpty());
    click(button("addDays"));
    EXPECT_TRUE(isShown(u"11 days off were added."_s));
    EXPECT_TRUE(isShown(u"Public holidays of Bavaria, added until 2028"_s));
    EXPECT_EQ(view().focusWidget(), &button("chooseHolidays"));
    EXPECT_TRUE(offOn(newYear).isEmpty());
    EXPECT_EQ(offOn(allSaints), u"All Saints' Day"_s);
    EXPECT_EQ(offOn(epiphany), u"Company day"_s);

    click(button("chooseHolidays")); // again: what was taken out stays out
    turn(u"2026"_s);
    turn(u"2028"_s);
    EXPECT_EQ(button("addDays").text(), u"Save"_s);
    turn(u"Mon 1 November"_s);
    EXPECT_EQ(button("addDays").text(), u"Take Out 1 Day Off"_s);
    click(button("addDays"));
    EXPECT_TRUE(offOn(allSaints).isEmpty());
    EXPECT_TRUE(isShown(u"1 day off was taken out."_s));

    click(button("chooseHolidays"));
    const QShortcut close(Qt::Key_Escape, &view(), &view(), &QWidget::close); // as all windows have
    auto& region = named<ComboBox>(view(), "region");
    region.setFocus();
    press(view(), Qt::Key_Return);
    press(*region.view(), Qt::Key_Escape); // which has the keyboard while it is open
    EXPECT_TRUE(view().isVisible()) << "the key closes the list only";
    press(view(), Qt::Key_S);
    EXPECT_TRUE(isShown(u"Holidays of Bavaria that are not checked are taken out."_s));
    const auto rows = review().model()->match(review().model()->index(0, 0), Qt::AccessibleTextRole,
                                              u"Friday, 1 January 2027, New Year's Day, not checked"_s, 1,
                                              Qt::MatchRecursive | Qt::MatchExactly);
    EXPECT_EQ(rows.size(), 1) << "what was taken out stays out in another region";
    press(view(), Qt::Key_Escape);
    EXPECT_TRUE(view().isVisible()) << "the key closes the review only";
    EXPECT_EQ(view().focusWidget(), &button("chooseHolidays"));
    click(button("chooseHolidays"));
    named<ComboBox>(view(), "region").setFocus();
    press(view(), Qt::Key_H);
    turn(u"2026"_s);
    EXPECT_THAT(rowsOf(review()), testing::Contains(u"Sun 15 August, Assumption Day, off until now"_s));
    EXPECT_EQ(button("addDays").text(), u"Add 11, Take Out 2"_s);
    click(button("addDays"));
    EXPECT_TRUE(isShown(u"11 days off were added. 2 days off were taken out."_s)) << "New Year's Day stays out";
    click(button("removeRegion"));
    EXPECT_FALSE(counting.holidayRegion());
    EXPECT_EQ(counting.daysOff(), (QList<DayOff>{{epiphany, u"Company day"_s}}));
}

TEST_F(CountingTest, theCountryOfTheLocaleIsOffered)
{
    const auto scope = scopedLocale(QLocale(QLocale::German, QLocale::Austria));
    open();
    click(button("chooseHolidays"));
    EXPECT_EQ(named<ComboBox>(view(), "country").currentText(), u"Austria"_s);
    EXPECT_FALSE(named<ComboBox>(view(), "region").isEnabled());
}

TEST_F(CountingTest, daysOffComeFromACalendarFile)
{
    open();
    chooseFile(u"notes.txt"_s, "Dear diary");
    EXPECT_TRUE(isShown(u"No days off were read. This is not a calendar file."_s));
    chooseFile(u"company.ics"_s,
               "BEGIN:VCALENDAR\r\nVERSION:2.0\r\n"
               "BEGIN:VEVENT\r\nDTSTART;VALUE=DATE:20261224\r\nSUMMARY:Half the company\r\nEND:VEVENT\r\n"
               "BEGIN:VEVENT\r\nDTSTART:20261222T090000Z\r\nSUMMARY:Meeting\r\nEND:VEVENT\r\n"
               "END:VCALENDAR\r\n");
    EXPECT_TRUE(isShown(u"Days Off from company.ics"_s));
    EXPECT_TRUE(named<QTextEdit>(view(), "problems").toPlainText().contains(u"\"Meeting\" is left out"_s));
    EXPECT_EQ(button("addDays").text(), u"Add 1 Day Off"_s);
    click(button("addDays"));
    EXPECT_EQ(offOn({2026, 12, 24}), u"Half the company"_s);
    EXPECT_EQ(view().focusWidget(), &button("chooseFile"));
}

TEST_F(CountingTest, whatCannotBeStoredIsSaidAndChangesNothing)
{
    std::ofstream(path.toStdString(), std::ios::app) << 'x';
    open();
    auto& toggle = named<Switch>(view(), "leaveOutVacation");
    click(toggle);
    EXPECT_FALSE(toggle.isChecked());
    click(button("setWorkdays"));
    click(button("chooseHolidays"));
    click(button("addDays"));
    EXPECT_TRUE(isShown(u"Nothing was changed, because the data file cannot be read."_s));
    press(view(), Qt::Key_Escape);
    EXPECT_EQ(shownTexts(view()).filter(u"Nothing was changed"_s).size(), 2);
    EXPECT_TRUE(isShown(u"Monday to Friday are workdays."_s));
}
