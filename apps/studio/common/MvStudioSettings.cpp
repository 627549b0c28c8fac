// SPDX-License-Identifier: LGPL-2.1-or-later
#include "common/MvStudioSettings.h"

#include "MvCore/MvDiskAccessRequest.h"

#include <QDir>
#include <QFileInfo>
#include <QSettings>
#include <QStandardPaths>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

const QString recentKey = u"recentFiles"_s;
const QString geometryKey = u"window/geometry"_s;
const QString stateKey = u"window/state"_s;

const QString fotoKind = u"photos"_s;

QSettings storage()
{
    return QSettings(QSettings::IniFormat, QSettings::UserScope, u"mvcalendar"_s, u"mvcalendar-studio"_s);
}

struct Failure
{
    std::function<void(const QString &)> handler;
    bool isTold = false;
};

Failure &failure()
{
    static Failure instance;
    return instance;
}

enum class Telling { Aloud, Quietly };

void store(const QString &key, const QVariant &value, Telling telling = Telling::Aloud)
{
    QSettings settings = storage();
    settings.setValue(key, value);
    settings.sync();
    const bool fails = settings.status() != QSettings::NoError;
    if (fails && telling == Telling::Aloud && !std::exchange(failure().isTold, true) && failure().handler)
        failure().handler(MvStudioSettings::tr("In die Datei %1 lässt sich nicht schreiben.")
                              .arg(QDir::toNativeSeparators(settings.fileName())));
    else if (!fails)
        failure().isTold = false;
}

/// Empty when the folder is not there, or was never chosen.
QString knownFolder(const QString &kind)
{
    const QString known = MvStudioSettings::text(u"folders/"_s + kind);
    return QFileInfo(known).isDir() ? known : QString();
}

QString kindOfRequest(int kind)
{
    return kind == MvDiskAccessRequest::FotoFile ? fotoKind : u"request%1"_s.arg(kind);
}

} // namespace

void MvStudioSettings::setFailureHandler(const std::function<void(const QString &)> &handler)
{
    failure() = {handler, false};
}

QString MvStudioSettings::language()
{
    return text(u"language"_s);
}

void MvStudioSettings::setLanguage(const QString &language)
{
    setText(u"language"_s, language);
}

QString MvStudioSettings::theme()
{
    return text(u"theme"_s, u"system"_s);
}

void MvStudioSettings::setTheme(const QString &theme)
{
    setText(u"theme"_s, theme);
}

QStringList MvStudioSettings::recentFiles()
{
    return storage().value(recentKey).toStringList();
}

void MvStudioSettings::addRecentFile(const QString &path)
{
    const QString absolute = QFileInfo(path).absoluteFilePath();
    QStringList files = recentFiles();
    files.removeAll(absolute);
    files.prepend(absolute);
    store(recentKey, QStringList(files.mid(0, mostRecentFiles)));
}

void MvStudioSettings::removeRecentFile(const QString &path)
{
    QStringList files = recentFiles();
    if (files.removeAll(path) > 0)
        store(recentKey, files);
}

void MvStudioSettings::clearRecentFiles()
{
    store(recentKey, QStringList());
}

QString MvStudioSettings::folder(const QString &kind)
{
    if (const QString known = knownFolder(kind); !known.isEmpty())
        return known;
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return QFileInfo(documents).isDir() ? documents : QDir::homePath();
}

void MvStudioSettings::setFolder(const QString &kind, const QString &path)
{
    setText(u"folders/"_s + kind, path);
}

QString MvStudioSettings::fotoFolder()
{
    const QString known = knownFolder(fotoKind);
    return known.isEmpty() ? QStandardPaths::writableLocation(QStandardPaths::PicturesLocation) : known;
}

QString MvStudioSettings::folderOfRequest(int kind)
{
    return knownFolder(kindOfRequest(kind));
}

void MvStudioSettings::setFolderOfRequest(int kind, const QString &path)
{
    setFolder(kindOfRequest(kind), path);
}

QByteArray MvStudioSettings::windowGeometry()
{
    return storage().value(geometryKey).toByteArray();
}

QByteArray MvStudioSettings::windowState()
{
    return storage().value(stateKey).toByteArray();
}

void MvStudioSettings::setWindow(const QByteArray &geometry, const QByteArray &state)
{
    // stored when the window closes: nobody reads a message then, or misses this much
    store(geometryKey, geometry, Telling::Quietly);
    store(stateKey, state, Telling::Quietly);
}

bool MvStudioSettings::isWelcomeShown()
{
    return storage().value(u"welcome"_s, true).toBool();
}

void MvStudioSettings::setWelcomeShown(bool shown)
{
    store(u"welcome"_s, shown);
}

bool MvStudioSettings::doEntriesReachOwn()
{
    return storage().value(u"entriesReachOwn"_s, true).toBool();
}

void MvStudioSettings::setEntriesReachOwn(bool reach)
{
    store(u"entriesReachOwn"_s, reach);
}

QString MvStudioSettings::text(const QString &key, const QString &defaultValue)
{
    return storage().value(key, defaultValue).toString();
}

void MvStudioSettings::setText(const QString &key, const QString &value)
{
    store(key, value);
}
