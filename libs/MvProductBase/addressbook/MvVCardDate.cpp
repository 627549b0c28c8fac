// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProductBase/MvVCardDate.h"

#include "MvCore/MvStringHelper.h"
#include "MvCore/MvTypedDate.h"

#include <QHash>
#include <QLocale>
#include <QRegularExpression>
#include <QSet>
#include <QStringList>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype longestDate = 80;

/// In plain digits, dashes and blanks, without quotation marks and without a time of day.
QString plain(const QString &text)
{
    QString result;
    for (const QChar c : text.normalized(QString::NormalizationForm_KC)) {
        if (c.digitValue() >= 0)
            result.append(QChar(u'0' + c.digitValue()));
        else if (c.category() == QChar::Punctuation_Dash || c == u'\u2212' || c == u'年' || c == u'月')
            result.append(u'-');
        else if (c.category() != QChar::Other_Format && !u"\"“”„‚‘’'日"_s.contains(c))
            result.append(c);
    }
    static const QRegularExpression time(u"(?<=.)[T ,]+\\d{1,2}:\\d{2}.*$"_s);
    return result.simplified().remove(time);
}

/// The words that dates are made of, without their accents' variants: how a card's program writes them.
struct Words
{
    QHash<QString, int> months; // 0: different ones in different languages
    QSet<QString> others;       // days of the week, and what may stand between the parts

    static QString key(QString word)
    {
        word.remove(u'.');
        return word.toCaseFolded();
    }

    Words()
    {
        for (const char *name : {"de_DE", "de_AT", "en_GB", "fr_FR", "it_IT", "es_ES", "nl_NL", "pt_PT", "da_DK"})
            add(QLocale(QLatin1StringView(name)));
        months.insert(u"maerz"_s, 3);
        months.insert(u"sept"_s, 9);
        for (const QString &word : u"st nd rd th er re e of de do del den der the le den am"_s.split(u' '))
            others.insert(word);
    }

    void add(const QLocale &locale)
    {
        for (const auto format : {QLocale::LongFormat, QLocale::ShortFormat}) {
            for (int month = 1; month <= 12; ++month)
                for (const QString &name : {locale.monthName(month, format), locale.standaloneMonthName(month, format)})
                    addMonth(key(name), month);
            for (int day = 1; day <= 7; ++day)
                for (const QString &name : {locale.dayName(day, format), locale.standaloneDayName(day, format)})
                    others.insert(key(name));
        }
    }

    void addMonth(const QString &name, int month)
    {
        const int known = months.value(name, month);
        months.insert(name, known == month ? month : 0);
    }
};

/// Makes dates of numbers.
struct Maker
{
    QDate today;
    int yearForNone = 0;

    /// Of texts; a year that is missing, "0000" or the one for none is unknown.
    QDate date(const QString &year, const QString &month, const QString &day) const
    {
        const int number = year.toInt();
        if (year.size() == 2)
            return shortDate(number, month.toInt(), day.toInt());
        if (number == 0 || number == yearForNone || number == MvVCardDate::unknownYear)
            return QDate(MvVCardDate::unknownYear, month.toInt(), day.toInt());
        return checked(QDate(number, month.toInt(), day.toInt()));
    }

    QDate shortDate(int year, int month, int day) const
    {
        const int century = today.year() / 100 * 100;
        const QDate latest = checked(QDate(century + year, month, day));
        return latest.isValid() ? latest : checked(QDate(century - 100 + year, month, day));
    }

    QDate checked(const QDate &date) const
    {
        return date.isValid() && date.year() >= MvTypedDate::earliestYear && date <= today ? date : QDate();
    }
};

/// "17. Mai 1990", "May 17, 1990", "Thu, 17 May 90", "17 de mayo": one month by name, the day, perhaps the year.
QDate namedDate(const QString &text, const Maker &make)
{
    static const Words words;
    static const QRegularExpression token(u"\\d+|[\\p{L}\\p{M}]+"_s);
    QString month;
    QStringList numbers;
    for (auto it = token.globalMatch(text); it.hasNext();) {
        const QString word = Words::key(it.next().captured());
        if (word.at(0).isDigit())
            numbers.append(word);
        else if (const int number = words.months.value(word); number > 0 && month.isEmpty())
            month = QString::number(number);
        else if (!words.others.contains(word))
            return {};
    }
    if (month.isEmpty() || numbers.isEmpty() || numbers.size() > 2)
        return {};
    if (numbers.first().size() == 4)
        numbers.move(0, numbers.size() - 1);
    const bool isDayFirst = numbers.first().size() <= 2;
    const QString year = numbers.value(1);
    if (!isDayFirst || (!year.isEmpty() && year.size() != 2 && year.size() != 4))
        return {};
    return make.date(year, month, numbers.first());
}

/// In one of the forms that are read the same everywhere.
QDate plainDate(const QString &text, const Maker &make)
{
    static const QRegularExpression standard(
        u"^(?:(\\d{4})-?|--)(?:(\\d{2})-?(\\d{2})|(\\d{1,2})-(\\d{1,2}))(?:[T ].*|Z|[+-]\\d{2}:?\\d{2})?$"_s);
    static const QRegularExpression yearFirst(u"^(\\d{4})([/. ]) ?(\\d{1,2})\\2 ?(\\d{1,2})\\.?$"_s);
    static const QRegularExpression dotted(u"^(\\d{1,2})\\. ?(\\d{1,2})\\. ?(\\d{4}|\\d{2})?$"_s);
    if (const auto match = standard.match(text); match.hasMatch()) {
        const int month = match.hasCaptured(2) ? 2 : 4;
        return make.date(match.captured(1), match.captured(month), match.captured(month + 1));
    }
    if (const auto match = yearFirst.match(text); match.hasMatch())
        return make.date(match.captured(1), match.captured(3), match.captured(4));
    if (const auto match = dotted.match(text); match.hasMatch())
        return make.date(match.captured(3), match.captured(2), match.captured(1));
    return namedDate(text, make);
}

} // namespace

MvVCardDate MvVCardDate::fromText(const QString &text, const QDate &today, int yearForNone)
{
    MvVCardDate result;
    result.m_text = MvStringHelper::beginning(MvStringHelper::simplifiedName(text), longestDate);
    if (result.m_text.isEmpty() || text.size() > longestDate)
        return result;
    const Maker make{today, yearForNone};
    const QString written = plain(text);
    static const QRegularExpression differing(u"^(\\d{1,2})([/ ]|-(?=.*\\d{4}))(\\d{1,2})\\2(\\d{4}|\\d{2})$"_s);
    const auto match = differing.match(written);
    if (!match.hasMatch()) {
        result.m_dayFirst = result.m_monthFirst = plainDate(written, make);
        return result;
    }
    const QString first = match.captured(1);
    const QString second = match.captured(3);
    result.m_separator = match.captured(2).at(0);
    result.m_dayFirst = make.date(match.captured(4), second, first);
    result.m_monthFirst = make.date(match.captured(4), first, second);
    if (result.m_dayFirst.isValid() && first.toInt() > 12)
        result.m_provenOrder = Order::DayFirst;
    else if (result.m_monthFirst.isValid() && second.toInt() > 12)
        result.m_provenOrder = Order::MonthFirst;
    return result;
}

bool MvVCardDate::isAmbiguous() const
{
    return m_dayFirst.isValid() && m_monthFirst.isValid() && m_dayFirst != m_monthFirst;
}

QDate MvVCardDate::date(Order order) const
{
    if (!isAmbiguous())
        return m_dayFirst.isValid() ? m_dayFirst : m_monthFirst;
    return order == Order::DayFirst ? m_dayFirst : order == Order::MonthFirst ? m_monthFirst : QDate();
}
