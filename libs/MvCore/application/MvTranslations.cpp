// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCore/MvTranslations.h"

#include "MvCore/MvApplicationLocale.h"
#include "MvCore/MvDirectoryConfig.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QPointer>
#include <QTranslator>

#include <algorithm>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

const QString sourceLanguage = u"de"_s;
const QString languageOfCLocale = u"en"_s;

struct Installed
{
    QString language = sourceLanguage;
    QList<QPointer<QTranslator>> translators; // owned by the application
};

Installed &installed()
{
    static Installed state;
    return state;
}

QString languageOf(const QString &localeName)
{
    const auto end = std::find_if(localeName.cbegin(), localeName.cend(),
                                  [](QChar c) { return c == u'-' || c == u'_' || c == u'.' || c == u'@'; });
    return localeName.left(end - localeName.cbegin()).toLower();
}

/// Where scripts and containers run; the list of preferred languages (LANGUAGE) does not count there. Nothing set is
/// the C locale, too, except where the system keeps its language elsewhere.
bool isCLocale()
{
    for (const char *variable : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        const QString language = languageOf(qEnvironmentVariable(variable));
        if (!language.isEmpty())
            return language == "c"_L1 || language == "posix"_L1;
    }
#if defined(Q_OS_WIN) || defined(Q_OS_DARWIN)
    return false;
#else
    return true;
#endif
}

/// Dates and numbers as the user's own country writes them, where it speaks this language.
QLocale localeFor(const QString &language)
{
    if (language == sourceLanguage)
        return QLocale(QLocale::German, QLocale::Germany);
    const QLocale system(QLocale::system().name());
    if (languageOf(system.name()) == language)
        return system;
    return language == "en"_L1 ? QLocale(QLocale::English, QLocale::UnitedKingdom) : QLocale(language);
}

/// As files of translations are named after them.
bool isCode(const QString &language)
{
    return (language.size() == 2 || language.size() == 3) &&
           std::all_of(language.cbegin(), language.cend(), [](QChar c) { return c >= u'a' && c <= u'z'; });
}

QFileInfo fileOf(const QString &language)
{
    return MvDirectoryConfig::instance().resource(u"i18n/mvcalendar_%1.qm"_s.arg(language));
}

/// Without a look at all the others.
bool hasTexts(const QString &language)
{
    return language == sourceLanguage || (isCode(language) && fileOf(language).isFile());
}

void add(std::unique_ptr<QTranslator> translator)
{
    translator->setParent(QCoreApplication::instance());
    QCoreApplication::installTranslator(translator.get());
    installed().translators.append(translator.release());
}

} // namespace

QStringList MvTranslations::languages()
{
    QStringList languages{sourceLanguage};
    for (const QString &name : MvDirectoryConfig::instance().resourceNames(u"i18n"_s, u"mvcalendar_*.qm"_s)) {
        const QString language = name.section(u'_', 1).chopped(3); // ".qm"
        if (isCode(language) && language != sourceLanguage)
            languages.append(language);
    }
    return languages;
}

QString MvTranslations::nameOf(const QString &language)
{
    if (!hasTexts(language))
        return {};
    QString name = QLocale(language).nativeLanguageName();
    if (language == "en"_L1)
        name = name.section(u' ', -1); // "American English"
    return name.isEmpty() ? language : name.left(1).toUpper() + name.mid(1);
}

QString MvTranslations::languageFor(const QStringList &preferred)
{
    const QString language = languageOf(preferred.value(0));
    return hasTexts(language) ? language : sourceLanguage;
}

QString MvTranslations::systemLanguage()
{
    const QString wanted = languageOf(qEnvironmentVariable("MVCALENDAR_LANGUAGE"));
    if (hasTexts(wanted))
        return wanted;
    return languageFor(isCLocale() ? QStringList{languageOfCLocale} : QLocale::system().uiLanguages());
}

bool MvTranslations::install(const QString &language)
{
    auto own = std::make_unique<QTranslator>();
    if (!isCode(language) || !own->load(fileOf(language).filePath()))
        return false;

    for (const QPointer<QTranslator> &translator : std::as_const(installed().translators))
        delete translator; // which takes it out of the application
    installed() = {language, {}};
    const QLocale locale = localeFor(language);
    MvApplicationLocale::instance().setLocale(locale);
    QLocale::setDefault(locale);

    auto ofQt = std::make_unique<QTranslator>();
    if (ofQt->load(u"qtbase_"_s + language, QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        add(std::move(ofQt)); // a part of the system that may be missing
    add(std::move(own));
    return true;
}

QString MvTranslations::language()
{
    return installed().language;
}

QString MvTranslations::choose(const QMap<QString, QString> &texts)
{
    const QString any = texts.isEmpty() ? QString() : texts.first();
    return texts.value(language(), texts.value(sourceLanguage, any));
}
