// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProductBase/MvCalendarWordsRegistry.h"

#include "MvCore/MvDirectoryConfig.h"
#include "MvXML/MvXMLElement.h"

#include <QDebug>

template class MvSingleton<MvCalendarWordsRegistry>;

using namespace Qt::StringLiterals;

namespace {

QString withoutDot(QString name)
{
    while (name.endsWith(u'.'))
        name.chop(1);
    return name;
}

/// The root element of a file of words; a null one, which is told, when it cannot be read.
MvXMLElement rootOf(const QString &file)
{
    const QFileInfo found = MvDirectoryConfig::instance().resource(u"words/"_s + file);
    MvXMLFile::Error error;
    const MvXMLElement root = found.exists() ? MvXMLElement::load(found, &error) : MvXMLElement();
    if (error.isError())
        qWarning().noquote() << error.describe(found);
    return root;
}

bool isDay(int day)
{
    return day >= 1 && day <= 7;
}

bool isMonth(int month)
{
    return month >= 1 && month <= 12;
}

/// What is known for the language in its country, else for the language alone.
template <typename Words>
Words wordsIn(const QHash<QString, Words> &all, const MvLocale &language, const Words &otherwise)
{
    const MvLocale locale = language.isValid() ? language : MvCalendarWordsRegistry::defaultLanguage();
    return all.value(locale.name(), all.value(locale.language(), otherwise));
}

} // namespace

MvCalendarWordsRegistry::MvCalendarWordsRegistry()
{
    readWeekWords();
    readPhrases();
    readPatterns();
}

MvLocale MvCalendarWordsRegistry::defaultLanguage()
{
    return MvLocale(u"de_DE"_s);
}

void MvCalendarWordsRegistry::readWeekWords()
{
    const MvXMLElement root = rootOf(u"weeks.xml"_s);
    for (const MvXMLElement &week : root.children) {
        if (week.name != u"week")
            continue;
        WeekWords words;
        words.shortWord = week.attribute(u"short"_s, u"W"_s);
        words.headline = week.attribute(u"headline"_s, words.shortWord);
        words.text = week.attribute(u"text"_s, u"%1"_s);
        m_weekWords.insert(week.attribute(u"language"_s), words);
    }
}

void MvCalendarWordsRegistry::readPhrases()
{
    const MvXMLElement root = rootOf(u"phrases.xml"_s);
    for (const MvXMLElement &element : root.children) {
        if (element.name != u"phrases")
            continue;
        Phrases phrases;
        phrases.schoolYear = element.attribute(u"schoolyear"_s, phrases.schoolYear);
        phrases.mother = element.attribute(u"mother"_s);
        phrases.father = element.attribute(u"father"_s);
        phrases.child = element.attribute(u"child"_s);
        phrases.photo = element.attribute(u"photo"_s, phrases.photo);
        Titles &titles = phrases.titles;
        titles.calendar = element.attribute(u"calendar"_s, titles.calendar);
        titles.period = element.attribute(u"period"_s, titles.period);
        titles.cover = element.attribute(u"cover"_s, titles.cover);
        titles.back = element.attribute(u"back"_s, titles.back);
        titles.further = element.attribute(u"further"_s, titles.further);
        Sheets &sheets = phrases.sheets;
        sheets.sheet = element.attribute(u"sheet"_s, sheets.sheet);
        sheets.tile = element.attribute(u"tile"_s, sheets.tile);
        sheets.back = element.attribute(u"sheetback"_s, sheets.back);
        phrases.anniversary = element.attribute(u"anniversary"_s, phrases.anniversary);
        m_phrases.insert(element.attribute(u"language"_s), phrases);
    }
}

void MvCalendarWordsRegistry::readPatterns()
{
    const MvXMLElement root = rootOf(u"patterns.xml"_s);
    for (const MvXMLElement &element : root.children) {
        if (element.name != u"patterns")
            continue;
        const auto pattern = [&element](const QString &name, const QString &otherwise) {
            return element.attribute(name, otherwise);
        };
        m_patterns.insert(element.attribute(u"language"_s),
                          {pattern(u"month"_s, u"%1 %2"_s), pattern(u"week"_s, u"%1 %2"_s), pattern(u"day"_s, u"d.M"_s),
                           pattern(u"ofday"_s, u"%1: %2"_s), pattern(u"oftwodays"_s, u"%1/%2: %3"_s),
                           pattern(u"ofdays"_s, u"%1-%2: %3"_s)});
    }
}

std::shared_ptr<const MvCalendarWordsRegistry::Names> MvCalendarWordsRegistry::names(const MvLocale &language) const
{
    const MvLocale locale = language.isValid() ? language : defaultLanguage();
    {
        QReadLocker lock(&m_lock);
        const auto known = m_names.constFind(locale);
        if (known != m_names.constEnd())
            return *known;
    }
    const QLocale words = locale.toQLocale();
    const auto made = std::make_shared<Names>();
    for (int day = 1; day <= 7; ++day) {
        made->shortDays[day - 1] = withoutDot(words.standaloneDayName(day, QLocale::ShortFormat));
        made->longDays[day - 1] = words.standaloneDayName(day, QLocale::LongFormat);
    }
    for (int month = 1; month <= 12; ++month) {
        made->shortMonths[month - 1] = withoutDot(words.standaloneMonthName(month, QLocale::ShortFormat));
        made->longMonths[month - 1] = words.standaloneMonthName(month, QLocale::LongFormat);
    }
    QWriteLocker lock(&m_lock);
    m_names.insert(locale, made);
    return made;
}

QString MvCalendarWordsRegistry::dayName(const MvLocale &language, int day, bool shortName) const
{
    if (!isDay(day))
        return {};
    const std::shared_ptr<const Names> words = names(language);
    return shortName ? words->shortDays[day - 1] : words->longDays[day - 1];
}

QString MvCalendarWordsRegistry::monthNameShort(const MvLocale &language, int month) const
{
    return isMonth(month) ? names(language)->shortMonths[month - 1] : QString();
}

QString MvCalendarWordsRegistry::monthNameLong(const MvLocale &language, int month) const
{
    return isMonth(month) ? names(language)->longMonths[month - 1] : QString();
}

MvCalendarWordsRegistry::WeekWords MvCalendarWordsRegistry::weekWords(const MvLocale &language) const
{
    return wordsIn(m_weekWords, language, {u"W"_s, u"W"_s, u"%1"_s});
}

QString MvCalendarWordsRegistry::weekShort(const MvLocale &language) const
{
    return weekWords(language).shortWord;
}

QString MvCalendarWordsRegistry::weekHeadline(const MvLocale &language) const
{
    return weekWords(language).headline;
}

QString MvCalendarWordsRegistry::weekText(const MvLocale &language) const
{
    return weekWords(language).text;
}

QString MvCalendarWordsRegistry::schoolYear(const MvLocale &language, const QString &years) const
{
    return wordsIn(m_phrases, language, {}).schoolYear.arg(years);
}

QString MvCalendarWordsRegistry::photo(const MvLocale &language) const
{
    return wordsIn(m_phrases, language, {}).photo;
}

MvCalendarWordsRegistry::Titles MvCalendarWordsRegistry::titles(const MvLocale &language) const
{
    return wordsIn(m_phrases, language, {}).titles;
}

MvCalendarWordsRegistry::Sheets MvCalendarWordsRegistry::sheets(const MvLocale &language) const
{
    return wordsIn(m_phrases, language, {}).sheets;
}

QString MvCalendarWordsRegistry::anniversary(const MvLocale &language, const QString &person) const
{
    return wordsIn(m_phrases, language, {}).anniversary.arg(person);
}

MvCalendarWordsRegistry::Patterns MvCalendarWordsRegistry::patterns(const MvLocale &language) const
{
    return wordsIn(m_patterns, language, m_patterns.value({}));
}

QString MvCalendarWordsRegistry::familyMember(const MvLocale &language, const QString &heading) const
{
    const Phrases from = wordsIn(m_phrases, defaultLanguage(), {});
    const Phrases to = wordsIn(m_phrases, language, {});
    const qsizetype lastBlank = heading.lastIndexOf(u' ');
    const QString number = heading.mid(lastBlank + 1);
    QString word;
    if (heading == from.mother)
        word = to.mother;
    else if (heading == from.father)
        word = to.father;
    else if (lastBlank > 0 && heading == from.child.arg(number) && !to.child.isEmpty())
        word = to.child.arg(number);
    return word.isEmpty() ? heading : word;
}
