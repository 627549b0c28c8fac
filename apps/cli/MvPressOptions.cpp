// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvPressOptions.h"

#include "plain/MvCliArguments.h"
#include "plain/MvCliValues.h"
#include "plain/MvNearMiss.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

constexpr int leastInk = 100; // percent of one: black type needs as much
constexpr int mostInk = 400;

} // namespace

QList<MvCliOption> MvPressOptions::options()
{
    return {
        {u"press"_s, tr("PROFIL"),
         tr("PDF für die Druckerei (PDF/X-4): Druckfarben nach diesem Farbprofil, Marken, Beschnitt 3 mm, wo keiner "
            "ist; %1 oder eine Datei (.icc)")
             .arg(MvPressProfile::names().join(u", "_s))},
        {u"no-marks"_s, {}, tr("mit --press: ohne Marken und Angaben neben der Seite")},
        {u"bleed-edge"_s, u"mirror|stretch"_s,
         tr("mit --press: der Beschnitt, wo keiner ist, spiegelt den Rand der Seite oder zieht ihn aus (mirror)")},
        {u"keep-photo-colors"_s,
         {},
         tr("mit --press: Farbfotos bleiben in sRGB, mit Profil; die Druckerei rechnet sie selbst um")},
        {u"ink-limit"_s, tr("PROZENT"),
         tr("mit --press: ab diesem Farbauftrag wird eine Seite genannt (nach dem Profil)")}};
}

MvPressSettings MvPressOptions::settings(MvCliValues &values, const MvCliArguments &arguments)
{
    MvPressSettings settings;
    for (const QString &name : {u"no-marks"_s, u"bleed-edge"_s, u"keep-photo-colors"_s, u"ink-limit"_s}) {
        if (values.has(name) && arguments.line(name) == 0 && !values.has(u"press"_s))
            values.setError(tr("--%1 gehört zu --press").arg(name));
    }
    if (!values.has(u"press"_s))
        return settings;
    const QString name = values.text(u"press"_s);
    const MvPressProfile::Loaded loaded = MvPressProfile::load(name);
    if (!loaded.isOk()) {
        const QString near = QFileInfo::exists(name) ? QString() : MvNearMiss::describe(name, MvPressProfile::names());
        values.setError(u"--press "_s + loaded.error + near);
    }
    settings.profile = loaded.profile;
    settings.hasMarks = !values.has(u"no-marks"_s);
    const bool isStretched = values.choice(u"bleed-edge"_s, {u"mirror"_s, u"stretch"_s}) == u"stretch"_s;
    settings.bleedKind = isStretched ? MvPressSettings::Bleed::Stretched : MvPressSettings::Bleed::Mirrored;
    settings.keepsFotoColors = values.has(u"keep-photo-colors"_s);
    settings.inkLimit = values.number(u"ink-limit"_s, leastInk, mostInk, 0);
    return settings;
}
