// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCore/MvTranslations.h"

#include "MvCore/MvApplicationLocale.h"
#include "MvCore/MvDirectoryConfig.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QPointer>
#include <QRegularExpression>
#include <QTranslator>

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
    return localeName.left(localeName.indexOf(QRegularExpression(u"[-_.@]"_s))).toLower();
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

void add(std::unique_ptr<QTranslator> translator)
{
    translator->setParent(QCoreApplication::instance());
    QCoreApplication::installTranslator(translator.get());
    installed().translators.append(translator.release());
}

} // namespace

QStringList MvTranslations::languages()
{
    static const QRegularExpression form(u"^mvcalendar_([a-z]{2,3})\\.qm$"_s);
    QStringList languages{sourceLanguage};
    for (const QString &name : MvDirectoryConfig::instance().resourceNames(u"i18n"_s, u"mvcalendar_*.qm"_s)) {
        const QString language = form.match(name).captured(1);
        if (!language.isEmpty() && language != sourceLanguage)
            languages.append(language);
    }
    return languages;
}

QString MvTranslations::nameOf(const QString &language)
{
    if (!languages().contains(language))
        return {};
    QString name = QLocale(language).nativeLanguageName();
    if (language == "en"_L1)
        name = name.section(u' ', -1); // "American English"
    return name.isEmpty() ? language : name.left(1).toUpper() + name.mid(1);
}

QString MvTranslations::languageFor(const QStringList &preferred)
{
    const QString language = languageOf(preferred.value(0));
    return languages().contains(language) ? language : sourceLanguage;
}

QString MvTranslations::systemLanguage()
{
    const QString wanted = languageOf(qEnvironmentVariable("MVCALENDAR_LANGUAGE"));
    if (languages().contains(wanted))
        return wanted;
    return languageFor(isCLocale() ? QStringList{languageOfCLocale} : QLocale::system().uiLanguages());
}

bool MvTranslations::install(const QString &language)
{
    if (!languages().contains(language))
        return false;
    auto own = std::make_unique<QTranslator>();
    const QString file = u"i18n/mvcalendar_%1.qm"_s.arg(language);
    if (!own->load(MvDirectoryConfig::instance().resource(file).filePath()))
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
