// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCore/MvTypedDate.h"

#include "MvCore/MvStringHelper.h"

#include <QList>
#include <QRegularExpression>
#include <QStringList>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype longestText = 100;
constexpr qsizetype longestQuotation = 22;
constexpr qsizetype shortestName = 3; // of a month, when cut
constexpr qsizetype shortestDayName = 2;
constexpr int months = 12;
constexpr int days = 7;

/// One way to understand a text. The year keeps its number of digits; it is empty when there is none.
struct Reading
{
    QString day;
    QString month;
    QString year;
};

bool isMonthFirst(const QLocale &locale)
{
    return locale.dateFormat(QLocale::ShortFormat).startsWith(u'M');
}

/// Digits of all scripts and widths as 0 to 9, blanks as single ones; without marks of direction and the like, which
/// come with copied text, and without a time of day behind the date.
QString plain(const QString &text)
{
    QString result;
    const QString compatible = text.normalized(QString::NormalizationForm_KC);
    for (const QChar character : compatible) {
        if (character.isDigit())
            result.append(QChar(u'0' + character.digitValue()));
        else if (character.category() != QChar::Other_Format)
            result.append(character);
    }
    static const QRegularExpression time(
        u"(?<=\\d)(?:T|,? )\\d{1,2}:\\d{2}(?::\\d{2}(?:\\.\\d+)?)?(?:Z|[+-]\\d{2}:?\\d{2})?$"_s);
    return result.simplified().remove(time);
}

/// Without case and accents: "MÄRZ", "Maerz" and "märz" are one.
QString folded(const QString &word)
{
    QString result;
    const QString decomposed = word.toCaseFolded().normalized(QString::NormalizationForm_D);
    for (const QChar character : decomposed) {
        if (character.isLetter())
            result.append(character);
    }
    return result.replace("ae"_L1, "a"_L1);
}

QList<QLocale> localesWith(const QLocale &locale)
{
    return {locale, QLocale(QLocale::German, QLocale::Germany), QLocale(QLocale::German, QLocale::Austria),
            QLocale(QLocale::English, QLocale::UnitedKingdom)};
}

bool isBeginningOf(const QString &name, const QString &word, qsizetype shortest)
{
    const QString whole = folded(name);
    return whole == word || (word.size() >= shortest && whole.startsWith(word));
}

/// 1 to 12, or 0 for a word that is no month.
int monthOf(const QString &text, const QLocale &locale)
{
    const QString word = folded(text);
    if (word == "mrz"_L1)
        return 3;
    if (word == "feber"_L1)
        return 2;
    const QList<QLocale> locales = localesWith(locale);
    for (const QLocale &one : locales) {
        for (int month = 1; month <= months; ++month) {
            for (const auto format : {QLocale::LongFormat, QLocale::ShortFormat}) {
                if (isBeginningOf(one.standaloneMonthName(month, format), word, shortestName) ||
                    isBeginningOf(one.monthName(month, format), word, shortestName))
                    return month;
            }
        }
    }
    return 0;
}

/// Words beside a date that say nothing about it.
bool isFiller(const QString &text, const QLocale &locale)
{
    static const QStringList fillers{u"am"_s, u"den"_s, u"der"_s, u"geb"_s,  u"geboren"_s,
                                     u"of"_s, u"on"_s,  u"the"_s, u"born"_s, u"sonnabend"_s};
    const QString word = folded(text);
    if (fillers.contains(word))
        return true;
    const QList<QLocale> locales = localesWith(locale);
    return std::any_of(locales.cbegin(), locales.cend(), [&word](const QLocale &one) {
        for (int day = 1; day <= days; ++day) {
            if (isBeginningOf(one.dayName(day, QLocale::LongFormat), word, shortestDayName))
                return true;
        }
        return false;
    });
}

/// Finds the ways to understand a text, the likeliest first.
class Reader
{
public:
    Reader(const QString &text, const QLocale &locale)
        : m_locale(locale)
        , m_isMonthFirst(isMonthFirst(locale))
    {
        if (split(text))
            read();
    }

    QList<Reading> readings() const { return m_readings; }

private:
    /// Takes the numbers, the name of a month and what stands between the first two numbers; false when something is
    /// there that belongs to no date.
    bool split(const QString &text)
    {
        static const QRegularExpression part(
            u"\\G(?:(?<number>\\d+)(?:(?:st|nd|rd|th)(?![a-z]))?|(?<word>\\p{L}\\p{M}*(?:\\p{L}|\\p{M})*)|"
            "(?<gap> ?(?:[.,]+|[/\\-‐‑‒–—−⁄])? ?['’]?))"_s,
            QRegularExpression::CaseInsensitiveOption);
        qsizetype at = 0;
        QString gap;
        while (at < text.size()) {
            const QRegularExpressionMatch match = part.match(text, at);
            if (!match.hasMatch() || match.capturedLength() == 0)
                return false;
            at = match.capturedEnd();
            if (match.hasCaptured(u"gap"_s)) {
                if (!gap.isEmpty() || (m_numbers.isEmpty() && m_month == 0 && !m_hasFiller))
                    return false; // two separators, or one before everything
                gap = match.captured(u"gap"_s);
                continue;
            }
            if (match.hasCaptured(u"number"_s)) {
                if (m_numbers.size() == 1)
                    m_gap = gap.trimmed();
                m_numbers.append(match.captured(u"number"_s));
            } else if (!takeWord(match.captured(u"word"_s))) {
                return false;
            }
            gap.clear();
        }
        static const QStringList endings{QString(), u"."_s, u","_s};
        return endings.contains(gap.trimmed());
    }

    bool takeWord(const QString &word)
    {
        if (const int month = monthOf(word, m_locale); month > 0) {
            const bool isFirst = m_month == 0;
            m_month = month;
            return isFirst;
        }
        m_hasFiller = isFiller(word, m_locale);
        return m_hasFiller;
    }

    void read()
    {
        if (m_month > 0)
            readWithMonthName();
        else if (m_numbers.size() == 3)
            readThree(m_numbers.at(0), m_numbers.at(1), m_numbers.at(2));
        else if (m_numbers.size() == 2)
            addInBothOrders(m_numbers.at(0), m_numbers.at(1), {});
        else if (m_numbers.size() == 1)
            readDigits(m_numbers.first());
    }

    void readWithMonthName()
    {
        const QString month = QString::number(m_month);
        if (m_numbers.size() == 1)
            add(m_numbers.first(), month, {});
        else if (m_numbers.size() == 2 && m_numbers.first().size() > 2)
            add(m_numbers.last(), month, m_numbers.first());
        else if (m_numbers.size() == 2)
            add(m_numbers.first(), month, m_numbers.last());
    }

    void readThree(const QString &first, const QString &second, const QString &third)
    {
        if (first.size() > 2)
            add(third, second, first);
        else
            addInBothOrders(first, second, third);
    }

    void readDigits(const QString &digits)
    {
        if (digits.size() != 4 && digits.size() != 6 && digits.size() != 8)
            return;
        addInBothOrders(digits.left(2), digits.mid(2, 2), digits.mid(4));
        if (digits.size() == 8)
            add(digits.mid(6), digits.mid(4, 2), digits.left(4));
    }

    void addInBothOrders(const QString &first, const QString &second, const QString &year)
    {
        const bool mayBeMonthFirst = m_isMonthFirst && !m_gap.startsWith(u'.') && !m_gap.startsWith(u',');
        if (mayBeMonthFirst)
            add(second, first, year);
        add(first, second, year);
    }

    void add(const QString &day, const QString &month, const QString &year)
    {
        const bool isYear = year.isEmpty() || (year.size() >= 2 && year.size() <= 6);
        if (day.size() <= 2 && month.size() <= 2 && isYear)
            m_readings.append({day, month, year});
    }

    QLocale m_locale;
    bool m_isMonthFirst;
    QStringList m_numbers;
    QString m_gap; // between the first two numbers, without blanks
    int m_month = 0;
    bool m_hasFiller = false;
    QList<Reading> m_readings;
};

int yearOf(const QString &digits, const QDate &today)
{
    const int year = digits.toInt();
    if (digits.size() > 2)
        return year;
    const int latest = today.year() + MvTypedDate::shortYearsAhead;
    const int ofThatCentury = latest - latest % 100 + year;
    return ofThatCentury > latest ? ofThatCentury - 100 : ofThatCentury;
}

MvTypedDate::Fault faultOf(const QDate &date, bool hasYear, int year, const QDate &today)
{
    using Fault = MvTypedDate::Fault;
    if (hasYear && year < MvTypedDate::earliestYear)
        return Fault::TooEarly;
    if (year > MvTypedDate::latestDate(today).year())
        return Fault::TooLate;
    if (!date.isValid())
        return Fault::NoSuchDay;
    if (date > MvTypedDate::latestDate(today))
        return Fault::TooLate;
    return hasYear && year == MvTypedDate::unknownYear ? Fault::ReservedYear : Fault::None;
}

} // namespace

MvTypedDate::MvTypedDate(const QString &text, const QLocale &locale, const QDate &today, int yearWhenMissing)
    : m_text(MvStringHelper::simplifiedName(text))
    , m_locale(locale)
    , m_today(today)
    , m_year(yearWhenMissing)
{
    if (m_text.isEmpty())
        m_fault = Fault::Empty;
    if (m_text.isEmpty() || m_text.size() > longestText)
        return;
    const QList<Reading> readings = Reader(plain(m_text), locale).readings();
    for (const Reading &reading : readings) {
        const bool hasYear = !reading.year.isEmpty();
        const int year = hasYear ? yearOf(reading.year, today) : yearWhenMissing;
        const QDate date(year, reading.month.toInt(), reading.day.toInt());
        const Fault fault = faultOf(date, hasYear, year, today);
        if (fault != Fault::None && m_fault != Fault::Unreadable)
            continue; // the likeliest reading says what is wrong
        m_date = date;
        m_year = year;
        m_hasYear = hasYear;
        m_fault = fault;
        if (fault == Fault::None)
            return;
    }
}

QString MvTypedDate::example() const
{
    if (isMonthFirst(m_locale))
        return u"12/24/1950"_s;
    return m_locale.language() == QLocale::English ? u"24/12/1950"_s : u"24.12.1950"_s;
}

QString MvTypedDate::error() const
{
    const QString typed =
        m_text.size() > longestQuotation ? MvStringHelper::beginning(m_text, longestQuotation - 1) + u'…' : m_text;
    switch (m_fault) {
    case Fault::None:
        break;
    case Fault::Empty:
        return tr("Bitte ein Datum eingeben. Beispiel: %1").arg(example());
    case Fault::Unreadable:
        return tr("„%1“ ist kein Datum. Beispiel: %2").arg(typed, example());
    case Fault::NoSuchDay:
        return m_hasYear ? tr("Den Tag „%1“ gibt es nicht. Beispiel: %2").arg(typed, example())
                         : tr("Den Tag „%1“ gibt es im Jahr %2 nicht. Beispiel: %3")
                               .arg(typed, QString::number(m_year), example());
    case Fault::TooEarly:
        return tr("„%1“ liegt vor dem Jahr %2. Beispiel: %3").arg(typed, QString::number(earliestYear), example());
    case Fault::TooLate:
        return tr("„%1“ liegt mehr als %2 Jahre voraus. Beispiel: %3")
            .arg(typed, QString::number(mostYearsAhead), example());
    case Fault::ReservedYear:
        return tr("„%1“: das Jahr %2 steht für ein unbekanntes. Beispiel: %3")
            .arg(typed, QString::number(m_year), example());
    }
    return {};
}
