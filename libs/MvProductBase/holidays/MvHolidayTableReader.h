// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvProductBase/MvHolidayTable.h"
#include "MvProductBase/MvSchoolVacationTable.h"
#include "MvProductBase/mvproductbase_export.h"
#include "MvXML/MvXMLElement.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QList>
#include <QString>
#include <QStringList>

/// Reads one file of holidays or school vacations; docs/holidays.md describes the formats.
///
/// What is malformed is left out and the rest is read. A file that is not well-formed gives nothing. Either way one
/// warning tells of it, with the first place that is wrong.
class MVPRODUCTBASE_EXPORT MvHolidayTableReader
{
    Q_DECLARE_TR_FUNCTIONS(MvHolidayTableReader)

public:
    struct Country
    {
        QString code;
        QString name; // in German
        QStringList languages;
    };

    explicit MvHolidayTableReader(const QFileInfo &file);

    /// The list of countries.
    QList<Country> readCountries();
    /// The holidays of a country.
    MvHolidayTable readTable();
    /// Adds school vacations of a country; a file that does not exist adds nothing.
    void readVacations(MvSchoolVacationTable &vacations);
    /// Adds those of some regions that end in a year or later, of a shipped file, which is known to be in order. The
    /// region "" stands for the whole country.
    void readShippedVacations(MvSchoolVacationTable &vacations, const QStringList &regions, int sinceYear);
    /// Applies the user's own file to the tables of a country: removals first, then what it adds. An added holiday
    /// takes the place of those of its name in its regions. A file that does not exist changes nothing.
    void readOwn(const QString &country, MvHolidayTable &table, MvSchoolVacationTable &vacations);

    /// What was wrong, one line each with its place, in the order of the file.
    QStringList problems() const { return m_problems; }

private:
    MvXMLElement open(const QString &rootName);
    MvXMLElement ownCountry(const QString &country);
    MvHolidayTable::Region readRegion(const MvXMLElement &element);
    std::optional<MvHolidayTable::Entry> readEntry(const MvXMLElement &element, const MvHolidayTable &table);
    /// The names of the element in other languages.
    static QHash<QString, QString> readNames(const MvXMLElement &element);
    void readVacations(const MvXMLElement &root, MvSchoolVacationTable &vacations);
    std::optional<MvSchoolVacationTable::Vacation> readVacation(const MvXMLElement &element);
    /// Why a vacation is none; empty if it is one.
    static QString problemOf(const MvSchoolVacationTable::Vacation &vacation);
    bool readYear(const MvXMLElement &element, const QString &attribute, std::optional<int> &year);
    bool readExceptions(const MvXMLElement &element, MvHolidayTable::Entry &entry);
    bool readRegions(const MvXMLElement &element, const MvHolidayTable &table, QStringList &regions);
    void readOwnVacations(const MvXMLElement &country, const MvHolidayTable &table, MvSchoolVacationTable &vacations);

    void complain(const MvXMLElement &element, const QString &message);
    void report() const;

    QFileInfo m_file;
    QStringList m_problems;
};
