// SPDX-License-Identifier: GPL-3.0-or-later
#include "Translations.h"
#include "StatisticsTexts.h"
#include "Testing.h"

TEST(Translations, areOfTheFirstLanguageThatThereIsInTheFormsOfItsNumbers)
{
    const auto locale = scopedLocale(QLocale(QLocale::German));
    const QString german = u"0 Arbeitstage, 1 Arbeitstag, 2 Arbeitstage, 2,50/5"_s;
    const QString english = u"0 workdays, 1 workdays, 2 workdays, 2.50/5"_s;
    for (const auto& [languages, texts] :
         {std::pair(u"de-AT en"_s, german), {u"tlh fr de"_s, german}, {u"en-GB de"_s, english}, {u"C"_s, english}}) {
        const Translations translations(languages.split(u' '));
        const QStringList shown{workdaysText(0), workdaysText(1), workdaysText(2), goalValueText(2.5)};
        EXPECT_EQ(shown.join(u", "_s), texts) << languages.toStdString();
    }
}
