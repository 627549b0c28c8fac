// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvFotoCalendar.h"

#include "MvCalendarOptions.h"
#include "MvProject/MvFotoDistribution.h"
#include "MvProject/MvFotoPoolIntake.h"
#include "MvProject/MvThemeRegistry.h"
#include "plain/MvCliValues.h"
#include "plain/MvNearMiss.h"

#include <QFileInfo>
#include <QTextStream>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// The id of the theme that the call names, by its id or its name.
QString themeId(MvCliValues &values)
{
    const MvThemeRegistry &registry = MvThemeRegistry::instance();
    if (!values.has(u"theme"_s))
        return registry.defaultTheme().id();
    const QString wanted = values.text(u"theme"_s).trimmed();
    QStringList names;
    for (const MvCalendarTheme &theme : registry.themes()) {
        if (theme.id().compare(wanted, Qt::CaseInsensitive) == 0 || theme.localizedName().isAnyOf(wanted))
            return theme.id();
        names.append(theme.name());
    }
    values.setError(MvFotoCalendar::tr("--theme „%1“: erlaubt sind %2").arg(wanted, registry.ids().join(u", "_s)) +
                    MvNearMiss::describe(wanted, registry.ids() + names));
    return {};
}

} // namespace

QList<MvCliOption> MvFotoCalendar::options()
{
    return {{u"photos"_s, tr("ORT"),
             tr("Fotos oder Ordner mit Fotos; daraus wird ein Fotokalender mit Titelblatt, Monaten und Rückseite; "
                "mehrfach erlaubt"),
             true},
            {u"theme"_s, u"ID"_s, tr("wie der Fotokalender aussieht, siehe themes")},
            {u"no-cover"_s, {}, tr("ohne Titelblatt")},
            {u"no-back"_s, {}, tr("ohne Rückseite")},
            {u"facing"_s, {}, tr("das Foto jedes Monats auf einer eigenen Seite, die über dem Monat hängt")}};
}

bool MvFotoCalendar::isAsked(const MvCliValues &values)
{
    const QList<MvCliOption> all = options();
    return std::any_of(all.cbegin(), all.cend(), [&](const MvCliOption &option) { return values.has(option.name); });
}

MvFotoCalendar::MvFotoCalendar(MvCliValues &values, const MvCliArguments &arguments)
    : m_paths(arguments.values(u"photos"_s))
{
    for (const MvCliOption &option : MvCalendarOptions::look()) {
        if (values.has(option.name))
            values.setError(
                tr("--%1 gilt nicht für Fotokalender: ihr Aussehen steht im Thema (--theme)").arg(option.name));
    }
    m_calendar.themeId = themeId(values);
    m_calendar.range = MvCalendarOptions::range(values);
    m_calendar.format = MvCalendarOptions::pageFormat(values);
    m_calendar.holidays = MvCalendarOptions::holidayConfig(values);
    m_calendar.title = values.text(u"title"_s);
    m_calendar.author = values.text(u"author"_s);
    m_calendar.hasCover = !values.has(u"no-cover"_s);
    m_calendar.hasBack = !values.has(u"no-back"_s);
    m_calendar.hasFacingPages = values.has(u"facing"_s);
}

MvCliProject MvFotoCalendar::make(QTextStream &hints) const
{
    MvCliProject project;
    for (const QString &path : m_paths) {
        if (!QFileInfo::exists(path))
            project.error = tr("%1: das gibt es nicht").replace(u"%1"_s, path);
    }
    if (!project.isOk())
        return project;
    project.document = m_calendar.make();
    const MvFotoPoolIntake::Result gathered = MvFotoPoolIntake::gather(m_paths);
    for (const QString &line : gathered.toStrings())
        hints << line << '\n';
    if (!m_paths.isEmpty() && gathered.items.isEmpty()) {
        project.error = tr("%1: darin sind keine Fotos").replace(u"%1"_s, m_paths.join(u", "_s));
        return project;
    }
    MvFotoPool pool;
    pool.add(gathered.items);
    project.document.setFotoPool(pool);
    const MvFotoDistribution::Result distributed = MvFotoDistribution::distribute(project.document);
    project.document = distributed.document;
    if (!distributed.unused.isEmpty())
        hints << tr("%n Fotos haben auf den Seiten keinen Platz gefunden", nullptr, int(distributed.unused.size()))
              << '\n';
    if (!m_paths.isEmpty() && distributed.emptyFrames > 0)
        hints << tr("%n Rahmen bleiben leer; mehr Fotos oder ein Thema mit weniger Bildern je Seite füllen sie",
                    nullptr, distributed.emptyFrames)
              << '\n';
    return project;
}
