// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvPageChoice.h"

#include "MvCalendar/MvCalendariumLayoutSchemaRegistry.h"
#include "MvProductBase/MvCalendariumHolidayCalculator.h"
#include "MvProject/MvFotoFrame.h"

#include <QMap>

#include <numeric>

using namespace Qt::StringLiterals;

namespace {

/// Every language, with the countries where it is spoken.
const QList<QList<MvLocale>> &languages()
{
    static const QList<QList<MvLocale>> languages = [] {
        QMap<QString, QList<MvLocale>> byLanguage;
        for (const MvLocale &locale : MvCalendariumHolidayCalculator::instance().availableLanguages())
            byLanguage[locale.language()].append(locale);
        return byLanguage.values();
    }();
    return languages;
}

} // namespace

QString MvPageChoice::describe() const
{
    static const QStringList entryNames{u"no entries"_s, u"short names"_s, u"long names"_s,
                                        u"many names"_s, u"photos"_s,      u"own entries"_s};
    const QString where = place == u"none"_s ? u"no photo"_s : u"photo %1 %2"_s.arg(place).arg(share);
    const QStringList parts{layout,
                            paper,
                            where,
                            u"%1 %"_s.arg(font),
                            (language.name() + u' ' + region).trimmed(),
                            entryNames.at(entries),
                            month.toString(u"yyyy-MM"_s),
                            hasWeeks ? u"weeks"_s : u"no weeks"_s};
    return parts.join(u", "_s);
}

const QStringList &MvPageChoice::papers()
{
    static const QStringList papers = [] {
        QStringList names;
        for (const QString &size : {u"A6"_s, u"A5"_s, u"A4"_s, u"A3"_s, u"A2"_s})
            names << size << size + u" landscape"_s;
        return names << u"200x200"_s << u"210x99"_s << u"90x55"_s;
    }();
    return papers;
}

const QStringList &MvPageChoice::places()
{
    static const QStringList places{u"none"_s, u"top"_s, u"left"_s, u"right"_s};
    return places;
}

const QList<double> &MvPageChoice::shares()
{
    static const QList<double> shares{MvFotoFrame::minimumShare, 0.45, MvFotoFrame::defaultShare, 0.65,
                                      MvFotoFrame::maximumShare};
    return shares;
}

const QList<int> &MvPageChoice::fonts()
{
    static const QList<int> fonts{100, 150, 200};
    return fonts;
}

const QList<QDate> &MvPageChoice::months()
{
    static const QList<QDate> months{QDate(2027, 5, 1), QDate(2026, 8, 1), QDate(2027, 2, 1),
                                     QDate(2027, 1, 1), QDate(2028, 2, 1), QDate(2027, 9, 1)};
    return months;
}

QStringList MvPageChoice::layouts()
{
    QStringList ids;
    for (const MvCalendariumLayoutSchema &schema : MvCalendariumLayoutSchemaRegistry::instance().schemata())
        ids << schema.ID().toString();
    return ids;
}

QList<int> MvPageChoice::factorSizes()
{
    return {int(papers().size()),    int(places().size()),
            int(shares().size()),    int(fonts().size()),
            int(languages().size()), Fotos + 1,
            int(months().size()),    2};
}

MvPageChoice MvPageChoice::of(const QString &layout, const QList<int> &values)
{
    MvPageChoice choice;
    choice.layout = layout;
    choice.paper = papers().at(values.at(0));
    choice.place = places().at(values.at(1));
    choice.share = shares().at(values.at(2));
    choice.font = fonts().at(values.at(3));
    const int turn = std::accumulate(values.begin(), values.end(), 0); // of what is no factor of its own
    const QList<MvLocale> countries = languages().at(values.at(4));
    choice.language = countries.at(turn % countries.size());
    choice.entries = Entries(values.at(5));
    choice.month = months().at(values.at(6));
    choice.hasWeeks = values.at(7) != 0;
    const QStringList regions = MvCalendariumHolidayCalculator::instance().availableProvinces(choice.language);
    if (!regions.isEmpty())
        choice.region = regions.at(turn % regions.size());
    return choice;
}
