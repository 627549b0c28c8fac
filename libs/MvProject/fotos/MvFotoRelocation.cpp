// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProject/MvFotoRelocation.h"

#include "MvFoto/MvFotoFacts.h"
#include "MvProject/MvFotoFiles.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <utility>

namespace {

constexpr double sameName = 0.5;   // beside the same with other capitals
constexpr double sameFacts = 1000; // more than any folders

/// How many folders from the file upwards have the same names, and whether the name has the same capitals.
double likeness(const QString &missing, const QString &found)
{
    const QStringList a = missing.split(u'/');
    const QStringList b = found.split(u'/');
    double points = a.last() == b.last() ? sameName : 0.0;
    for (qsizetype i = 2; i <= a.size() && i <= b.size() && a[a.size() - i] == b[b.size() - i]; ++i)
        points += 1.0;
    return points;
}

bool isSame(const MvFotoFacts &facts, const MvFotoPoolItem *known)
{
    return known && facts.isValid() && facts.size == known->size && facts.captured == known->captured;
}

/// The best file of the missing one's name, empty when there is none.
QString byName(const QString &missing, const QList<QFileInfo> &files, const MvFotoPoolItem *known)
{
    QString best;
    double most = -1.0;
    for (const QFileInfo &file : files) {
        const bool isAlike = files.size() > 1 && isSame(MvFotoFacts::of(file), known);
        const double points = likeness(missing, file.filePath()) + (isAlike ? sameFacts : 0.0);
        if (points > most) {
            most = points;
            best = file.filePath();
        }
    }
    return best;
}

} // namespace

QStringList MvFotoRelocation::missing(const MvCalendarDocument &document)
{
    QStringList paths = document.missingFotos();
    for (const QString &path : document.fotoPool().paths()) {
        if (!paths.contains(path) && !MvFotoFacts::of(QFileInfo(path)).isValid())
            paths.append(path);
    }
    return paths;
}

QHash<QString, QString> MvFotoRelocation::find(const QStringList &missing, const MvFotoPool &pool,
                                               const QString &folder, const std::function<bool()> &goOn)
{
    const auto mayGoOn = [&goOn] { return !goOn || goOn(); };
    MvFotoFiles below({}, mayGoOn);
    below.add(folder);
    QHash<QString, QList<QFileInfo>> files; // by name
    for (const QFileInfo &file : std::as_const(below.files))
        files[file.fileName().toCaseFolded()].append(file);
    QHash<QString, QString> found;
    QStringList renamed; // perhaps
    for (const QString &path : missing) {
        if (!mayGoOn())
            return found;
        const QString file = byName(path, files.value(QFileInfo(path).fileName().toCaseFolded()), pool.find(path));
        if (!file.isEmpty())
            found.insert(path, file);
        else if (const MvFotoPoolItem *known = pool.find(path); known && known->captured.isValid())
            renamed.append(path);
    }
    QHash<QString, QStringList> alike; // files by the missing one they may be
    const QList<QString> taken = found.values();
    for (const QFileInfo &file : std::as_const(below.files)) {
        if (renamed.isEmpty() || !mayGoOn())
            break;
        if (taken.contains(file.filePath()))
            continue;
        const MvFotoFacts facts = MvFotoFacts::of(file);
        for (const QString &path : std::as_const(renamed)) {
            if (isSame(facts, pool.find(path)))
                alike[path].append(file.filePath());
        }
    }
    for (auto it = alike.cbegin(); it != alike.cend(); ++it) {
        if (it->size() == 1)
            found.insert(it.key(), it->constFirst());
    }
    return found;
}

MvCalendarDocument MvFotoRelocation::relocated(const MvCalendarDocument &document, const QHash<QString, QString> &found)
{
    MvCalendarDocument changed = document;
    for (auto it = found.cbegin(); it != found.cend(); ++it)
        changed.replaceFoto(it.key(), it.value());
    return changed;
}
