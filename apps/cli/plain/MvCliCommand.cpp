// SPDX-License-Identifier: LGPL-2.1-or-later
#include "plain/MvCliCommand.h"

using namespace Qt::StringLiterals;

MvCliOption MvCliCommand::countryOption()
{
    return {u"country"_s, QCoreApplication::translate("MvCliCommand", "LAND"),
            QCoreApplication::translate("MvCliCommand", "Staat, Kürzel oder Name (DE)")};
}

MvCliOption MvCliCommand::languageOption()
{
    return {u"language"_s, QCoreApplication::translate("MvCliCommand", "SPRACHE"),
            QCoreApplication::translate("MvCliCommand", "Sprache, wo ein Staat mehrere hat: de, fr, it …")};
}

MvCliOption MvCliCommand::regionOption()
{
    return {u"region"_s, u"REGION"_s,
            QCoreApplication::translate("MvCliCommand", "Bundesland, Kanton …, Kürzel oder Name: BY, Bayern")};
}

MvCliOption MvCliCommand::formatOption(const QStringList &formats)
{
    return {u"format"_s, formats.join(u'|'), QCoreApplication::translate("MvCliCommand", "Ausgabe (text)")};
}

MvCliOption MvCliCommand::jsonOption()
{
    return {u"json"_s, {}, QCoreApplication::translate("MvCliCommand", "wie --format json")};
}

MvCliOption MvCliCommand::projectOption()
{
    return {u"project"_s, QCoreApplication::translate("MvCliCommand", "DATEI"),
            QCoreApplication::translate("MvCliCommand", "das Projekt; --project kann wegbleiben"), false, true};
}

QList<MvCliOption> MvCliCommand::commonOptions()
{
    return {{u"quiet"_s, {}, QCoreApplication::translate("MvCliCommand", "nur Fehler nennen, keine Hinweise")},
            {u"verbose"_s, {}, QCoreApplication::translate("MvCliCommand", "auch nennen, was gerade geschieht")},
            {u"no-config"_s,
             {},
             QCoreApplication::translate("MvCliCommand", "ohne die eigenen Einstellungen (mvcalendar.conf)")}};
}
