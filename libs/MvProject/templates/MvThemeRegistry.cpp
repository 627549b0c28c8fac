// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProject/MvThemeRegistry.h"

#include "MvCalendar/MvSchemaPlace.h"
#include "MvCore/MvDirectoryConfig.h"
#include "MvProject/MvThemeReader.h"

#include <algorithm>

template class MvSingleton<MvThemeRegistry>;

using namespace Qt::StringLiterals;

MvThemeRegistry::MvThemeRegistry()
{
    const QList<QFileInfo> files = MvDirectoryConfig::instance().shippedAndOwn(u"themes"_s, u"*.xml"_s);
    for (const QFileInfo &file : files) {
        const QList<MvCalendarTheme> themes = MvThemeReader(file).read();
        for (const MvCalendarTheme &theme : themes) {
            const MvCalendarTheme known = findTheme(theme.id());
            if (!known.isValid()) {
                m_themes.append(theme);
                continue;
            }
            MvSchemaPlace place;
            place.file = file;
            place.warn(
                MvThemeRegistry::tr(
                    "Das Thema „%1“ bleibt weg, denn seine Kennung %2 hat schon „%3“. Eine andere bringt es zurück.")
                    .arg(theme.name(), theme.id(), known.name()));
        }
    }
}

QStringList MvThemeRegistry::ids() const
{
    QStringList ids;
    for (const MvCalendarTheme &theme : m_themes)
        ids.append(theme.id());
    return ids;
}

MvCalendarTheme MvThemeRegistry::findTheme(const QString &id) const
{
    const auto found = std::find_if(m_themes.cbegin(), m_themes.cend(),
                                    [&](const MvCalendarTheme &theme) { return theme.id() == id; });
    return found == m_themes.cend() ? MvCalendarTheme() : *found;
}
