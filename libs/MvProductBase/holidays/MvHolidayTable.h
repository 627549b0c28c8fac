// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvProductBase/MvCalendariumHolidayList.h"
#include "MvProductBase/MvHolidayRule.h"
#include "MvProductBase/mvproductbase_export.h"

#include <QHash>
#include <QList>
#include <QSet>
#include <QStringList>

#include <optional>

/// The holidays of one country as rules, with its regions.
class MVPRODUCTBASE_EXPORT MvHolidayTable
{
public:
    struct Region
    {
        QString code; // "BY"
        QString name; // in German
        QString parent;
        QString language;  // of its people, where it is not that of the country
        QString localName; // in that language
    };

    struct Entry
    {
        QString name;                  // in the language of the country
        QHash<QString, QString> names; // in other languages, by language code
        MvCalendariumHolidayType type;
        MvHolidayRule rule;
        QStringList regions; // empty: the whole country
        QStringList exceptRegions;
        std::optional<int> from; // years of the rule, both included
        std::optional<int> until;
        QSet<int> exceptYears;
        bool isPartial = false; // in a part of each region only

        bool holdsIn(const QStringList &regions) const;
        bool holdsIn(int year) const;
    };

    QString language() const { return m_language; }
    void setLanguage(const QString &language) { m_language = language; }

    const QList<Region> &regions() const { return m_regions; }
    void addRegion(const Region &region) { m_regions.append(region); }
    bool hasRegion(const QString &code) const { return region(code) != nullptr; }
    QStringList regionCodes() const;
    /// The code of the region with the code or a name (whatever their case); empty when there is none.
    QString findRegion(const QString &codeOrName) const;
    /// The region's name for a reader of the language; empty for an unknown code.
    QString regionName(const QString &code, const QString &language) const;
    /// The region and the regions it belongs to, innermost first: whose holidays hold in it. Empty for an unknown code.
    QStringList regionWithParents(const QString &code) const;

    const QList<Entry> &entries() const { return m_entries; }
    void addEntry(const Entry &entry) { m_entries.append(entry); }
    /// Takes the holidays of that name (whatever its case) away, in the given regions or, with none given, everywhere.
    void removeEntries(const QString &name, const QStringList &regions);

    /// What the table says about one year, by date, then public before optional before observed, then in the order of
    /// the table. A name stands once on a day. The name is the one in the wanted language, else in that of the region.
    MvCalendariumHolidayList holidays(int year, const QString &region, const QString &language) const;

    /// The order of the kinds of holidays on one day.
    static int rank(const MvCalendariumHolidayType &type);

private:
    const Region *region(const QString &code) const;
    QString nameOf(const Entry &entry, const QString &region, const QString &language) const;

    QString m_language;
    QList<Region> m_regions;
    QList<Entry> m_entries;
};
