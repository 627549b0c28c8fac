// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProductBase/MvCalendariumHolidayCalculator.h"

#include "MvRows.h"
#include "MvTest.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int firstYear = 2026;
constexpr int lastYear = 2030;

using NamesByDate = QMap<QDate, QStringList>;

QMap<QString, NamesByDate> readFacts()
{
    QMap<QString, NamesByDate> facts;
    QFile file(QStringLiteral(MV_TEST_DATA "/public_holidays.csv"));
    if (!file.open(QIODevice::ReadOnly))
        return facts;
    const QStringList lines = QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts);
    for (const QString &line : lines) {
        const QStringList fields = line.split(u',');
        if (!line.startsWith(u'#') && fields.size() == 4) {
            facts[fields.at(0) + u'-' + fields.at(1)][QDate::fromString(fields.at(2), Qt::ISODate)].append(
                fields.at(3));
        }
    }
    return facts;
}

MvLocale localeOf(const QString &country)
{
    const MvLocale german(u"de"_s, country);
    const QList<MvLocale> known = MvCalendariumHolidayCalculator::instance().availableLanguages();
    if (known.contains(german))
        return german;
    const auto any = std::find_if(known.cbegin(), known.cend(),
                                  [&country](const MvLocale &locale) { return locale.country() == country; });
    return any == known.cend() ? MvLocale() : *any;
}

NamesByDate computed(const QString &place)
{
    const MvCalendariumHolidayConfig config(localeOf(place.section(u'-', 0, 0)), place.section(u'-', 1),
                                            FEATURE_PUBLIC_HOLIDAYS_ONLY);
    NamesByDate found;
    for (int year = firstYear; year <= lastYear; ++year) {
        const MvCalendariumHolidayList holidays =
            MvCalendariumHolidayCalculator::instance().holidaysOfYear(MvCalendariumHolidayCacheKey(year, config));
        for (const MvCalendariumHoliday &holiday : holidays)
            found[holiday.date()].append(holiday.description());
    }
    return found;
}

QStringList datesOnlyIn(const NamesByDate &a, const NamesByDate &b)
{
    QStringList dates;
    for (auto day = a.cbegin(); day != a.cend(); ++day) {
        if (!b.contains(day.key()))
            dates.append(day.key().toString(Qt::ISODate) + u' ' + day.value().join(u" / "_s));
    }
    return dates;
}

// takes the explained days away and says whether each explanation was needed as often as it claims
QString takeExplained(const QString &place, const QString &side, QStringList &days)
{
    for (const QStringList &difference : MvRowsFile::lines(u"public-holiday-differences"_s, 4)) {
        if (difference.at(2) != side || !difference.first().split(u' ').contains(place))
            continue;
        const QString &name = difference.at(1);
        const auto removed = days.removeIf([&name](const QString &day) { return day.mid(11) == name; });
        if (removed != difference.at(3).toInt())
            return u"%1: %2 days instead of %3"_s.arg(name).arg(removed).arg(difference.at(3));
    }
    return {};
}

} // namespace

/// The public holidays of five years against a source that the product does not use.
class tst_MvPublicHolidays : public MvTest
{
    Q_OBJECT

private Q_SLOTS:
    void agreeWithIndependentSource_data();
    void agreeWithIndependentSource();
};

void tst_MvPublicHolidays::agreeWithIndependentSource_data()
{
    const MvRows<QString, NamesByDate> row; // place, facts
    const QMap<QString, NamesByDate> facts = readFacts();
    for (const char *land :
         {"BW", "BY", "BE", "BB", "HB", "HH", "HE", "MV", "NI", "NW", "RP", "SL", "SN", "ST", "SH", "TH"})
        QVERIFY2(facts.contains(u"DE-"_s + QLatin1StringView(land)), land);
    for (auto place = facts.cbegin(); place != facts.cend(); ++place)
        row(place.key(), place.key(), place.value());
}

void tst_MvPublicHolidays::agreeWithIndependentSource()
{
    const auto [place, facts] = MvRows<QString, NamesByDate>::current();
    const NamesByDate here = computed(place);
    QStringList onlyHere = datesOnlyIn(here, facts);
    QStringList onlyThere = datesOnlyIn(facts, here);
    QCOMPARE(takeExplained(place, u"here"_s, onlyHere), QString());
    QCOMPARE(takeExplained(place, u"there"_s, onlyThere), QString());
    QCOMPARE(onlyHere, QStringList());
    QCOMPARE(onlyThere, QStringList());
}

MV_TEST_MAIN(tst_MvPublicHolidays)
#include "tst_MvPublicHolidays.moc"
