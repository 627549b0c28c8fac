// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProductBase/MvCalendarWordsRegistry.h"

#include "MvCore/MvDirectoryConfig.h"
#include "MvXML/MvXMLLoader.h"
#include "MvXML/MvXMLParser.h"

template class MvSingleton<MvCalendarWordsRegistry>;

using namespace Qt::StringLiterals;

namespace {

QString withoutDot(QString name)
{
    while (name.endsWith(u'.'))
        name.chop(1);
    return name;
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
    const QFileInfo file = MvDirectoryConfig::instance().resource(u"words/weeks.xml"_s);
    const QDomElement root = MvXMLLoader::loadDocumentElement(file);
    for (QDomElement week = root.firstChildElement(u"week"_s); !week.isNull();
         week = week.nextSiblingElement(u"week"_s)) {
        WeekWords words;
        words.shortWord = MvXMLParser::textAttribute(week, u"short"_s, u"W"_s);
        words.headline = MvXMLParser::textAttribute(week, u"headline"_s, words.shortWord);
        words.text = MvXMLParser::textAttribute(week, u"text"_s, u"%1"_s);
        m_weekWords.insert(MvXMLParser::textAttribute(week, u"language"_s), words);
    }
}

void MvCalendarWordsRegistry::readPhrases()
{
    const QFileInfo file = MvDirectoryConfig::instance().resource(u"words/phrases.xml"_s);
    const QDomElement root = MvXMLLoader::loadDocumentElement(file);
    for (QDomElement element = root.firstChildElement(u"phrases"_s); !element.isNull();
         element = element.nextSiblingElement(u"phrases"_s)) {
        Phrases phrases;
        phrases.schoolYear = MvXMLParser::textAttribute(element, u"schoolyear"_s, phrases.schoolYear);
        phrases.mother = MvXMLParser::textAttribute(element, u"mother"_s);
        phrases.father = MvXMLParser::textAttribute(element, u"father"_s);
        phrases.child = MvXMLParser::textAttribute(element, u"child"_s);
        phrases.photo = MvXMLParser::textAttribute(element, u"photo"_s, phrases.photo);
        Titles &titles = phrases.titles;
        titles.calendar = MvXMLParser::textAttribute(element, u"calendar"_s, titles.calendar);
        titles.period = MvXMLParser::textAttribute(element, u"period"_s, titles.period);
        titles.cover = MvXMLParser::textAttribute(element, u"cover"_s, titles.cover);
        titles.back = MvXMLParser::textAttribute(element, u"back"_s, titles.back);
        titles.further = MvXMLParser::textAttribute(element, u"further"_s, titles.further);
        Sheets &sheets = phrases.sheets;
        sheets.sheet = MvXMLParser::textAttribute(element, u"sheet"_s, sheets.sheet);
        sheets.tile = MvXMLParser::textAttribute(element, u"tile"_s, sheets.tile);
        sheets.back = MvXMLParser::textAttribute(element, u"sheetback"_s, sheets.back);
        phrases.anniversary = MvXMLParser::textAttribute(element, u"anniversary"_s, phrases.anniversary);
        m_phrases.insert(MvXMLParser::textAttribute(element, u"language"_s), phrases);
    }
}

void MvCalendarWordsRegistry::readPatterns()
{
    const QFileInfo file = MvDirectoryConfig::instance().resource(u"words/patterns.xml"_s);
    const QDomElement root = MvXMLLoader::loadDocumentElement(file);
    for (QDomElement element = root.firstChildElement(u"patterns"_s); !element.isNull();
         element = element.nextSiblingElement(u"patterns"_s)) {
        const auto pattern = [&element](const QString &name, const QString &otherwise) {
            return MvXMLParser::textAttribute(element, name, otherwise);
        };
        m_patterns.insert(MvXMLParser::textAttribute(element, u"language"_s),
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
