// SPDX-License-Identifier: GPL-3.0-or-later
#include "CountingTexts.h"

#include "Weekdays.h"
#include "WorkTime.h"

#include <QCoreApplication>
#include <QLocale>

using namespace Qt::StringLiterals;

namespace {

struct CountingTexts {
    Q_DECLARE_TR_FUNCTIONS(CountingTexts)
};

} // namespace

QString counting_texts::date(QDate date)
{
    //: A date, in the format of QLocale::toString(). Put words in single quotes: 'the' d.
    return QLocale().toString(date, CountingTexts::tr("d MMMM yyyy"));
}

QString counting_texts::dayAndMonth(QDate date)
{
    //: A short date, in the format of QLocale::toString(). Put words in single quotes: 'the' d.
    return QLocale().toString(date, CountingTexts::tr("ddd d MMMM"));
}

QString counting_texts::weekdays(Weekdays weekdays)
{
    constexpr int daysOfWeek = 7;
    const int firstDay = static_cast<int>(QLocale().firstDayOfWeek());
    const auto day = [=](int place) { return (firstDay - 1 + place) % daysOfWeek + 1; };
    const auto name = [=](int place) { return QLocale().standaloneDayName(day(place), QLocale::ShortFormat); };
    QStringList parts;
    for (int first = 0; first < daysOfWeek; ++first) {
        if (!weekdays.contains(day(first)))
            continue;
        int last = first;
        while (last + 1 < daysOfWeek && weekdays.contains(day(last + 1)))
            ++last;
        if (last - first < 2) // "Mon, Tue" rather than "Mon–Tue"
            last = first;
        parts.append(last == first ? name(first)
                                   : CountingTexts::tr("%1–%2", "days of the week").arg(name(first), name(last)));
        first = last;
    }
    return parts.join(", "_L1);
}

QString counting_texts::source(DayOffSource source)
{
    switch (source) {
    case DayOffSource::Hand:
        return CountingTexts::tr("Added by hand");
    case DayOffSource::Holidays:
        return CountingTexts::tr("Public holiday");
    case DayOffSource::File:
        return CountingTexts::tr("From a file");
    }
    return {};
}

QString counting_texts::daysOff(qsizetype count)
{
    return count == 1 ? CountingTexts::tr("1 day off")
                      : CountingTexts::tr("%n days off", nullptr, static_cast<int>(count));
}

QString counting_texts::changed(qsizetype added, qsizetype takenOut)
{
    QStringList sentences;
    if (added > 0)
        sentences += added == 1 ? CountingTexts::tr("1 day off was added.")
                                : CountingTexts::tr("%n days off were added.", nullptr, static_cast<int>(added));
    if (takenOut > 0)
        sentences += takenOut == 1
                         ? CountingTexts::tr("1 day off was taken out.")
                         : CountingTexts::tr("%n days off were taken out.", nullptr, static_cast<int>(takenOut));
    return sentences.join(u' ');
}

QString counting_texts::notStored()
{
    return CountingTexts::tr(
        "Nothing was changed, because the data file cannot be read. Try again, or restart Pellory.");
}
