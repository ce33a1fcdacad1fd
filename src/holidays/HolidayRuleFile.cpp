// SPDX-License-Identifier: GPL-3.0-or-later
#include "HolidayRuleFile.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr std::array weekdayNames{"monday"_L1, "tuesday"_L1,  "wednesday"_L1, "thursday"_L1,
                                  "friday"_L1, "saturday"_L1, "sunday"_L1};
constexpr std::array monthNames{"january"_L1,   "february"_L1, "march"_L1,    "april"_L1,
                                "may"_L1,       "june"_L1,     "july"_L1,     "august"_L1,
                                "september"_L1, "october"_L1,  "november"_L1, "december"_L1};
constexpr std::array ordinals{"first"_L1, "second"_L1, "third"_L1, "fourth"_L1};
constexpr std::array substitutes{"monday"_L1, "nearest"_L1, "next"_L1}; // in the order of HolidayRule::Substitute

/// The place of a word among others, counted from 1; 0 if it is none of them.
template <class Words> int placeOf(QStringView word, const Words& words)
{
    const auto found = std::ranges::find_if(words, [word](const auto& other) { return word == other; });
    return found == words.end() ? 0 : int(found - words.begin()) + 1;
}

[[noreturn]] void refuse(const QString& what)
{
    throw HolidayRuleError(what.toStdString());
}

/// Reads a rule word by word.
class RuleReader {
public:
    explicit RuleReader(QStringView text)
        : m_words(text.split(u' ', Qt::SkipEmptyParts))
    {
    }

    HolidayRule read()
    {
        readDate();
        while (const int weekday = takeOneOf(weekdayNames))
            m_rule.moves.at(static_cast<std::size_t>(weekday) - 1) = takeDays();
        while (!m_words.isEmpty())
            readOption();
        return m_rule;
    }

private:
    [[nodiscard]] bool takeIf(QLatin1StringView word)
    {
        const bool isNext = !m_words.isEmpty() && m_words.first() == word;
        if (isNext)
            m_words.removeFirst();
        return isNext;
    }

    template <class Words> [[nodiscard]] int takeOneOf(const Words& words)
    {
        const int place = m_words.isEmpty() ? 0 : placeOf(m_words.first(), words);
        if (place != 0)
            m_words.removeFirst();
        return place;
    }

    [[nodiscard]] QStringView take() { return m_words.isEmpty() ? QStringView() : m_words.takeFirst(); }

    void expect(QLatin1StringView word)
    {
        if (!takeIf(word))
            refuse(u"\"%1\" is missing"_s.arg(word));
    }

    template <class Words> [[nodiscard]] int expectOneOf(const Words& words, const QString& what)
    {
        const int place = takeOneOf(words);
        if (place == 0)
            refuse(u"%1 is missing"_s.arg(what));
        return place;
    }

    [[nodiscard]] bool hasNumber() const { return !m_words.isEmpty() && m_words.first().at(0).isDigit(); }

    [[nodiscard]] int takeYear()
    {
        const QStringView word = take();
        const int year = word.toInt();
        if (word.size() != 4 || year < 1000)
            refuse(u"\"%1\" is no year"_s.arg(word));
        return year;
    }

    [[nodiscard]] bool hasDays() const
    {
        return !m_words.isEmpty() && (m_words.first().at(0) == u'+' || m_words.first().at(0) == u'-');
    }

    [[nodiscard]] int takeDays()
    {
        const bool isSigned = hasDays();
        const QStringView word = take();
        const int days = word.toInt();
        if (!isSigned || days == 0)
            refuse(u"\"%1\" is no number of days with a sign"_s.arg(word));
        return days;
    }

    [[nodiscard]] static QDate dateFrom(const QString& text)
    {
        const QDate date = QDate::fromString(text, Qt::ISODate);
        if (!date.isValid())
            refuse(u"\"%1\" is no date"_s.arg(text));
        return date;
    }

    [[nodiscard]] static DayOfMonth dayFrom(QStringView monthAndDay)
    {
        const QDate date = dateFrom("2000-"_L1 + monthAndDay.toString()); // a leap year
        return {date.month(), date.day()};
    }

    void readDate()
    {
        if (takeIf("easter"_L1))
            m_rule.day = DayFromEaster{hasDays() ? takeDays() : 0};
        else if (const int ordinal = takeOneOf(ordinals))
            readWeekdayOfMonth(ordinal);
        else if (takeIf("last"_L1))
            readWeekdayOfMonth({});
        else if (const int weekday = takeOneOf(weekdayNames))
            readWeekdayNearDay(weekday);
        else
            readDayOfYear(take());
    }

    void readDayOfYear(QStringView word)
    {
        const bool hasYear = word.size() == 10;
        if (hasYear)
            m_rule.from = m_rule.until = dateFrom(word.toString()).year();
        m_rule.day = dayFrom(hasYear ? word.sliced(5) : word);
    }

    void readWeekdayOfMonth(std::optional<int> ordinal)
    {
        using Direction = WeekdayNearDay::Direction;
        const int weekday = expectOneOf(weekdayNames, u"a weekday"_s);
        expect("of"_L1);
        const int month = expectOneOf(monthNames, u"a month"_s);
        if (ordinal)
            m_rule.day = WeekdayNearDay{weekday, Direction::After, {month, *ordinal * 7 - 6}};
        else
            m_rule.day = WeekdayNearDay{weekday, Direction::Before, {month, 31}};
    }

    void readWeekdayNearDay(int weekday)
    {
        constexpr std::array directions{"before"_L1, "after"_L1};
        expect("on"_L1);
        expect("or"_L1);
        const int direction = expectOneOf(directions, u"\"before\" or \"after\""_s);
        m_rule.day = WeekdayNearDay{weekday, WeekdayNearDay::Direction(direction - 1), dayFrom(take())};
    }

    void readOption()
    {
        if (takeIf("substitute"_L1))
            m_rule.substitute = HolidayRule::Substitute(expectOneOf(substitutes, u"the kind of substitute"_s));
        else if (takeIf("from"_L1))
            m_rule.from = takeYear();
        else if (takeIf("until"_L1))
            m_rule.until = takeYear();
        else if (takeIf("every"_L1))
            readEvery();
        else if (takeIf("except"_L1))
            readExceptions();
        else if (takeIf("in"_L1))
            readAreas();
        else
            refuse(u"\"%1\" is not known"_s.arg(take()));
    }

    void readEvery()
    {
        m_rule.everyYears = take().toInt();
        if (m_rule.everyYears < 2 || m_rule.from < 1000)
            refuse(u"\"every\" needs a number of years, and \"from\" before it"_s);
    }

    void readExceptions()
    {
        do {
            m_rule.exceptYears.append(takeYear());
        } while (hasNumber());
    }

    void readAreas()
    {
        while (!m_words.isEmpty())
            m_rule.areas.append(take().toString());
        if (m_rule.areas.isEmpty())
            refuse(u"\"in\" needs the end of an id"_s);
    }

    QList<QStringView> m_words;
    HolidayRule m_rule;
};

/// The text after a word and a space; nothing if the line starts otherwise.
std::optional<QStringView> after(QLatin1StringView word, QStringView line)
{
    if (!line.startsWith(word) || !line.sliced(word.size()).startsWith(u' '))
        return {};
    return line.sliced(word.size()).trimmed();
}

RuleArea areaFrom(QStringView text, const QList<HolidayCountry>& countries)
{
    const auto space = text.indexOf(u' ');
    const QStringView id = space < 0 ? text : text.left(space);
    for (const HolidayCountry& country : countries) {
        if (std::ranges::find(country.areas, id, &RuleArea::id) != country.areas.end())
            refuse(u"There is a \"%1\" already"_s.arg(id));
    }
    return {id.toString(), space < 0 ? QString() : text.sliced(space + 1).trimmed().toString()};
}

// From the ends of ids, as in the file, to the ids.
void completeAreas(HolidayRule& rule, const QList<RuleArea>& areas)
{
    for (QString& end : rule.areas) {
        const auto found = std::ranges::find_if(
            areas, [&](const RuleArea& area) { return area.id.sliced(std::min<qsizetype>(area.id.size(), 3)) == end; });
        if (found == areas.end())
            refuse(u"There is no area \"%1\""_s.arg(end));
        end = found->id;
    }
}

HolidayRule ruleFrom(QStringView line, const QList<RuleArea>& areas)
{
    const auto colon = line.indexOf(u": ");
    if (colon < 0)
        refuse(u"The name is missing"_s);
    HolidayRule rule = RuleReader(line.left(colon)).read();
    rule.name = line.sliced(colon + 2).trimmed().toString();
    completeAreas(rule, areas);
    return rule;
}

void readLine(QStringView line, QList<HolidayCountry>& countries)
{
    if (const auto country = after("country"_L1, line)) {
        countries.append({.name = country->toString(), .areas = {}, .rules = {}});
        return;
    }
    if (countries.isEmpty())
        refuse(u"The country is missing"_s);
    HolidayCountry& country = countries.last();
    if (const auto area = after("area"_L1, line))
        country.areas.append(areaFrom(*area, countries));
    else
        country.rules.append(ruleFrom(line, country.areas));
}

} // namespace

QList<HolidayCountry> readHolidayRules(QStringView text)
{
    QList<HolidayCountry> countries;
    int number = 0;
    for (const QStringView whole : text.split(u'\n')) {
        ++number;
        const QStringView line = whole.trimmed();
        if (line.isEmpty() || line.startsWith(u'#'))
            continue;
        try {
            readLine(line, countries);
        } catch (const HolidayRuleError& error) {
            refuse(u"Line %1: %2"_s.arg(QString::number(number), QString::fromUtf8(error.what())));
        }
    }
    return countries;
}
