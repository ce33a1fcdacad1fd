// SPDX-License-Identifier: GPL-3.0-or-later
#include "StoreTest.h"

#include <QCoreApplication>

namespace {

struct Records {
    Month& month;
    Goal& goal;
    AppSettings& settings;
};

constexpr void (*fieldChanges[])(const Records&){
    [](const Records& of) { of.month.year = -2026; },
    [](const Records& of) { of.month.month = 13; },
    [](const Records& of) { of.month.name = u"'März' \"%1\" \U0001F3E2\n"_s; },
    [](const Records& of) { of.month.daysInMonth = 0; },
    [](const Records& of) { mark(of.month, 2, DayState::WILL_BE_IN_OFFICE); },
    [](const Records& of) { of.goal.wantedDaysPerWeek = u"nan'; --"_s; },
    [](const Records& of) { of.goal.desc = u"**a\0b** <b>\t"_s; },
    [](const Records& of) { of.settings.daysPerWeekGoals = AppSettings::Goals(); },
    [](const Records& of) {
        const auto goals = of.settings.daysPerWeekGoals.value();
        of.settings.daysPerWeekGoals = {goals.last(), Goal::create(u"1"_s, u"new"_s), goals.first()};
    },
    [](const Records& of) { of.settings.inOfficeSsids = QStringList(3, u" \"\0\\ "_s); },
    [](const Records& of) { of.settings.firstTime = false; },
    [](const Records& of) { of.settings.wifiTrackingEnabled = true; },
    [](const Records& of) { of.settings.vacationDaysCountAsInOffice = true; },
    [](const Records& of) { of.settings.notificationsEnabled = false; },
    [](const Records& of) { of.settings.checkEveryInMinutes = -(1LL << 40); },
};

} // namespace

class ModelContextTest : public StoreTest {};

TEST_F(ModelContextTest, savesAChangeOfAnyFieldAtTheEndOfTheTurn)
{
    for (const auto& change : fieldChanges) {
        SCOPED_TRACE(&change - fieldChanges);
        QFile::remove(path);
        putSample();
        const auto container = open();
        ModelContext& context = container->mainContext();
        const auto before = contents(context);
        const auto settings = context.fetchSettings().first();
        change({*context.fetchMonths().first(), *settings->daysPerWeekGoals.value().first(), *settings});
        EXPECT_EQ(stored(), before);
        QCoreApplication::processEvents();
        EXPECT_NE(stored(), before);
        EXPECT_EQ(stored(), contents(context));
    }
}

TEST_F(ModelContextTest, savesAtOnceWhenAskedAndWritesNothingWithoutAChange)
{
    putSample();
    const auto container = open();
    ModelContext& context = container->mainContext();
    const auto month = context.fetchMonths(2026, 2).first();
    mark(*month, 27, DayState::OUT_OF_OFFICE);
    EXPECT_TRUE(context.save());
    EXPECT_EQ(stored(), contents(context));

    const QByteArray saved = bytes();
    mark(*month, 27, DayState::OUT_OF_OFFICE);
    context.insert(month);
    EXPECT_FALSE(context.hasChanges());
    EXPECT_TRUE(context.save());
    QCoreApplication::processEvents();
    EXPECT_TRUE(bytes() == saved);
}

TEST_F(ModelContextTest, givesOneObjectPerRecord)
{
    putSample();
    const auto container = open();
    ModelContext& context = container->mainContext();
    const auto february = context.fetchMonths(2026, 2);
    ASSERT_EQ(february.size(), 1);
    EXPECT_EQ(context.fetchMonths(2026, 2), february);
    EXPECT_TRUE(context.fetchMonths().contains(february.first()));
    EXPECT_TRUE(context.fetchMonths(2025, 2).isEmpty() && context.fetchMonths(2026, 4).isEmpty());
    const auto settings = context.fetchSettings();
    EXPECT_EQ(context.fetchSettings(), settings);
    EXPECT_THAT(context.fetchGoals(), testing::UnorderedElementsAreArray(settings.first()->daysPerWeekGoals.value()));
}

TEST_F(ModelContextTest, findsWhatIsInsertedBeforeAndAfterItIsSaved)
{
    auto container = open();
    EXPECT_TRUE(container->mainContext().fetchSettings().isEmpty());
    container->mainContext().insert(std::make_shared<AppSettings>());
    const QList two{std::make_shared<Month>(2026, 3), std::make_shared<Month>(2026, 3)};
    mark(*two.last(), 2, DayState::IN_OFFICE);
    for (const auto& month : two + two)
        container->mainContext().insert(month);
    EXPECT_EQ(container->mainContext().fetchMonths(2026, 3), two);
    EXPECT_TRUE(container->mainContext().save());
    EXPECT_THAT(container->mainContext().fetchMonths(2026, 3), testing::UnorderedElementsAreArray(two));
    const QStringList inserted = contents(container->mainContext());
    EXPECT_EQ(inserted.size(), 2 + 1 + 3);
    EXPECT_EQ(stored(), inserted);
}
