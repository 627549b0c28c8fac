// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvStudioOptions.h"

#include <QCommandLineParser>

using namespace Qt::StringLiterals;

namespace {

QString helpText()
{
    return MvStudioOptions::tr("Aufruf: mvcalendar-studio [Optionen] [Datei]\n"
                               "Gestaltet Fotokalender und druckt sie.\n"
                               "\n"
                               "  Datei                      Kalender, der geöffnet wird\n"
                               "  --language de|en|system    Sprache des Programms\n"
                               "  --theme light|dark|system  helle oder dunkle Farben\n"
                               "  -h, --help                 diese Hilfe\n"
                               "  -v, --version              die Version\n");
}

} // namespace

MvStudioOptions MvStudioOptions::parse(const QStringList &arguments)
{
    MvStudioOptions options;
    QCommandLineParser parser;
    const QCommandLineOption language(u"language"_s, {}, u"language"_s);
    const QCommandLineOption theme(u"theme"_s, {}, u"theme"_s);
    const QCommandLineOption help(QStringList{u"h"_s, u"help"_s});
    const QCommandLineOption version(QStringList{u"v"_s, u"version"_s});
    parser.addOptions({language, theme, help, version});
    if (!parser.parse(arguments)) {
        const QStringList unknown = parser.unknownOptionNames();
        options.fail(unknown.isEmpty() ? tr("eine Option steht ohne ihren Wert")
                                       : tr("unbekannte Option „%1“").arg(unknown.first()));
        return options;
    }
    if (parser.isSet(help)) {
        options.m_message = helpText();
        return options;
    }
    if (parser.isSet(version)) {
        options.m_message = u"mvcalendar-studio %1\n"_s.arg(QCoreApplication::applicationVersion());
        return options;
    }
    const auto choose = [&](const QCommandLineOption &option, const QStringList &allowed) {
        const QString value = parser.value(option);
        if (parser.isSet(option) && !allowed.contains(value))
            options.fail(tr("--%1 „%2“: erlaubt sind %3").arg(option.names().first(), value, allowed.join(u", "_s)));
        return value;
    };
    options.m_language = choose(language, {u"de"_s, u"en"_s, u"system"_s});
    options.m_theme = choose(theme, {u"light"_s, u"dark"_s, u"system"_s});
    if (parser.positionalArguments().size() > 1)
        options.fail(tr("mehr als eine Datei"));
    options.m_file = parser.positionalArguments().value(0);
    return options;
}

void MvStudioOptions::fail(const QString &message)
{
    if (m_exitCode == 0)
        m_message = tr("mvcalendar-studio: %1 (Hilfe: mvcalendar-studio --help)").arg(message) + u'\n';
    m_exitCode = 2;
}
