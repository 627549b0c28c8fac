// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvEntryFiles.h"

#include "MvCalendar/MvCalendarEventFile.h"
#include "MvCalendar/MvEntryTable.h"
#include "MvCalendar/MvICalendar.h"

#include "MvCore/MvSafeFileWriter.h"

#include <QStringList>

using namespace Qt::StringLiterals;

namespace {

const QStringList &suffixesOf(MvEntryFiles::Kind kind)
{
    static const QStringList lists{u"xml"_s};
    static const QStringList calendars{u"ics"_s, u"ical"_s, u"ifb"_s, u"vcs"_s};
    static const QStringList cards{u"vcf"_s, u"vcard"_s};
    static const QStringList tables{u"csv"_s, u"tsv"_s, u"txt"_s};
    static const QStringList none;
    switch (kind) {
    case MvEntryFiles::Kind::List:
        return lists;
    case MvEntryFiles::Kind::Calendar:
        return calendars;
    case MvEntryFiles::Kind::Cards:
        return cards;
    case MvEntryFiles::Kind::Table:
        return tables;
    case MvEntryFiles::Kind::None:
        break;
    }
    return none;
}

QString patterns(const QStringList &suffixes)
{
    QStringList patterns;
    for (const QString &suffix : suffixes)
        patterns.append(u"*."_s + suffix);
    return patterns.join(u' ');
}

constexpr MvEntryFiles::Kind kinds[] = {MvEntryFiles::Kind::List, MvEntryFiles::Kind::Calendar,
                                        MvEntryFiles::Kind::Table, MvEntryFiles::Kind::Cards};

} // namespace

MvEntryFiles::Kind MvEntryFiles::kindOf(const QString &path)
{
    const QString suffix = QFileInfo(path).suffix().toLower();
    for (const Kind kind : kinds) {
        if (suffixesOf(kind).contains(suffix))
            return kind;
    }
    return Kind::None;
}

QString MvEntryFiles::openFilter()
{
    QStringList all;
    for (const Kind kind : kinds)
        all += suffixesOf(kind);
    return QStringList{tr("Termine und Einträge (%1)").arg(patterns(all)),
                       tr("Listen von Einträgen (%1)").arg(patterns(suffixesOf(Kind::List))),
                       tr("Kalender, iCalendar (%1)").arg(patterns(suffixesOf(Kind::Calendar))),
                       tr("Tabellen (%1)").arg(patterns(suffixesOf(Kind::Table))),
                       tr("Visitenkarten (%1)").arg(patterns(suffixesOf(Kind::Cards))),
                       tr("Alle Dateien (*)")}
        .join(u";;"_s);
}

QString MvEntryFiles::saveFilter()
{
    return QStringList{tr("Listen von Einträgen (%1)").arg(u"*.xml"_s), tr("Kalender, iCalendar (%1)").arg(u"*.ics"_s),
                       tr("Tabellen mit Semikolon (%1)").arg(u"*.csv"_s),
                       tr("Tabellen mit Tabulator (%1)").arg(u"*.tsv"_s)}
        .join(u";;"_s);
}

MvOutcome MvEntryFiles::write(const MvCalendarEventList &events, const QFileInfo &file)
{
    QByteArray bytes;
    switch (kindOf(file.fileName())) {
    case Kind::Calendar:
        bytes = MvICalendar::toBytes(events);
        break;
    case Kind::Table:
        bytes = MvEntryTable::toBytes(events, file.suffix().toLower() == u"tsv" ? u'\t' : u';');
        break;
    default:
        bytes = MvCalendarEventFile::toBytes(events);
    }
    return MvSafeFileWriter::write(file, bytes);
}
