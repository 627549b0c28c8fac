// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCore/mvcore_export.h"

#include <QMap>
#include <QString>
#include <QStringList>

/// The language of the program's own texts. They are written in German; other languages come as translations
/// (resource "i18n/mvcalendar_<language>.qm"), German ones alone for texts with a number, which stand in the plural.
/// What a calendar prints follows the calendar's language instead, and is the same in every language of the program.
class MVCORE_EXPORT MvTranslations
{
public:
    /// ISO 639 codes of the languages there are texts in: German first, then those of which there is a file, shipped or
    /// among the user's resources: "de", "en".
    static QStringList languages();
    /// As its speakers call it: "English". Empty for an unknown language.
    static QString nameOf(const QString &language);

    /// The language for somebody who prefers these, best first ("en-US", "de_AT"): that of the first one, if there are
    /// texts in it, else German.
    static QString languageFor(const QStringList &preferred);
    /// That of the environment variable MVCALENDAR_LANGUAGE, else of the user's locale. The C locale, and none
    /// at all, are English.
    static QString systemLanguage();

    /// Puts the texts of the program and of Qt, MvApplicationLocale and QLocale's default into this language. Needs the
    /// QCoreApplication; call it before texts are made, for those made keep their language. False for a language
    /// without texts, and nothing changes.
    static bool install(const QString &language);
    /// The language installed last, German at first.
    static QString language();
    /// Of a text in several languages, by code: the one in the language installed, else the one in German, else any.
    static QString choose(const QMap<QString, QString> &texts);
};
