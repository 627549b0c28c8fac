// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCore/MvLocale.h"
#include "MvCore/MvSingleton.h"
#include "MvProductBase/mvproductbase_export.h"

#include <QHash>
#include <QReadWriteLock>
#include <QString>

#include <memory>

class MvCalendarWordsRegistry;
extern template class MVPRODUCTBASE_EXPORT MvSingleton<MvCalendarWordsRegistry>;

/// The words of the calendar in every language: names of days and months as they stand alone, the word for week, and
/// what else the calendar says itself.
///
/// Short names carry no dot at their end. An invalid locale speaks the default language. May be asked by any thread.
class MVPRODUCTBASE_EXPORT MvCalendarWordsRegistry : public MvSingleton<MvCalendarWordsRegistry>
{
public:
    MvCalendarWordsRegistry();

    static MvLocale defaultLanguage();

    /// 1 = Monday to 7 = Sunday; any other number gives an empty name.
    QString dayName(const MvLocale &language, int day, bool shortName) const;
    /// 1 = January to 12 = December; any other number gives an empty name.
    QString monthNameShort(const MvLocale &language, int month) const;
    QString monthNameLong(const MvLocale &language, int month) const;

    /// The short word for week, "KW" in German; "W" in a language without words of its own.
    QString weekShort(const MvLocale &language) const;
    /// The head of the column of calendar weeks.
    QString weekHeadline(const MvLocale &language) const;
    /// The text of a week in that column; `%1` stands for its number.
    QString weekText(const MvLocale &language) const;

    /// "Schuljahr 2026/27" for the years "2026/27"; the years alone in a language without words of its own.
    QString schoolYear(const MvLocale &language, const QString &years) const;
    /// The heading of a column for a member of the family, "Mama" or "Kind 1" in the default language; a heading that
    /// names none, or a language without words of its own, gives the heading as it is.
    QString familyMember(const MvLocale &language, const QString &heading) const;

    /// What a photo is called that nobody has described, "Foto".
    QString photo(const MvLocale &language) const;

    /// What calendars and pages without a title of their own are called; English in a language without such words.
    struct Titles
    {
        QString calendar = QStringLiteral("Calendar %1"); // the year or the months
        QString period = QStringLiteral("%1 – %2");       // the first month and the last one
        QString cover = QStringLiteral("Cover");
        QString back = QStringLiteral("Back");
        QString further = QStringLiteral("%1, another page"); // the months of the page before
    };
    Titles titles(const MvLocale &language) const;

    /// What stands beside pages on a printer's sheets; English in a language without such words.
    struct Sheets
    {
        QString sheet = QStringLiteral("Sheet %1 of %2"); // its number and that of all
        QString tile = QStringLiteral("%1 of %2");        // its column and row and those of the last one
        QString back = QStringLiteral("%1, back");        // the sheet
    };
    Sheets sheets(const MvLocale &language) const;

    /// "Anna (Jahrestag)" for a person whose entry is no birthday; English in a language without such words.
    QString anniversary(const MvLocale &language, const QString &person) const;

    /// How the page puts words and numbers together: with %1, %2 and so on as resources/words/patterns.xml says.
    struct Patterns
    {
        QString month;
        QString week;
        QString day; // a format of dates
        QString ofDay;
        QString ofTwoDays;
        QString ofDays;
    };
    Patterns patterns(const MvLocale &language) const;

private:
    struct WeekWords
    {
        QString shortWord;
        QString headline;
        QString text;
    };
    struct Phrases
    {
        QString schoolYear = QStringLiteral("%1");
        QString mother;
        QString father;
        QString child; // %1 is its number
        QString photo = QStringLiteral("Photo");
        Titles titles;
        Sheets sheets;
        QString anniversary = QStringLiteral("%1 (anniversary)");
    };
    struct Names
    {
        QString shortDays[7];
        QString longDays[7];
        QString shortMonths[12];
        QString longMonths[12];
    };

    void readWeekWords();
    void readPhrases();
    void readPatterns();
    WeekWords weekWords(const MvLocale &language) const;
    std::shared_ptr<const Names> names(const MvLocale &language) const;

    QHash<QString, WeekWords> m_weekWords; // by "de_CH" or "de"; never changes once read
    QHash<QString, Phrases> m_phrases;     // likewise
    QHash<QString, Patterns> m_patterns;   // likewise; "" for all others
    mutable QReadWriteLock m_lock;         // guards m_names
    mutable QHash<MvLocale, std::shared_ptr<const Names>> m_names;
};
