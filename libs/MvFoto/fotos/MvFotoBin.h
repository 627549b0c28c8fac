// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvFoto/mvfoto_export.h"

#include <QDate>
#include <QDir>
#include <QFileInfo>
#include <QSet>
#include <QString>
#include <QStringList>

/// Where photos of a photo folder go that nothing uses any more: a folder in it, with one folder for each day. A photo
/// that is needed again, by an undone step or a restored backup, is fetched back by its name; what has lain there for a
/// month may go for good.
class MVFOTO_EXPORT MvFotoBin
{
public:
    static constexpr int daysKept = 30;
    static constexpr int daysOverdue = 8; // between being found too old and going: a clock may be wrong for a week

    explicit MvFotoBin(const QDir &fotoFolder);

    /// Moves a photo of the folder into the bin. False when that fails; it then stays where it is.
    bool put(const QString &name, const QDate &today) const;
    bool contains(const QString &name) const { return !pathOf(name).isEmpty(); }
    /// Puts a photo back into the folder, unless there is one of this name. True when one is there afterwards.
    bool fetchBack(const QString &name) const;

    /// A new empty file in the folder with the name, or one made from it, so that no other program takes that
    /// meanwhile. Names in the bin are taken, too: what is fetched back must not be another photo. Where no file can be
    /// made, the name alone.
    QFileInfo reserve(const QString &name) const;

    /// The names of all photos in the bin.
    QStringList names() const;
    /// Notes what came more than `daysKept` days before today, and deletes what was noted at least `daysOverdue` days
    /// before; but not those photos that are still needed.
    void empty(const QDate &today, const QSet<QString> &needed) const;

private:
    QStringList days() const;
    QString pathOf(const QString &name) const;

    QDir m_fotoFolder;
    QDir m_folder;
};
