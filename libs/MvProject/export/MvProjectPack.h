// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendarEventList.h"
#include "MvCore/MvOutcome.h"
#include "MvProject/MvCalendarDocument.h"
#include "MvProject/mvproject_export.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QFileInfo>
#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

/// A calendar with everything that it shows, to be taken to another computer: the project, its photos in the folder
/// "fotos", its entries in "eintraege.xml" and their photos in the folder "eintraege". All paths in it are relative.
///
/// Only what is on the pages goes into it: no photo of the pool that is nowhere used, and nothing that is kept for
/// pages that there are not. Files are copied as they are. Any thread.
class MVPROJECT_EXPORT MvProjectPack
{
    Q_DECLARE_TR_FUNCTIONS(MvProjectPack)

public:
    /// Notes name what could not be taken along, or will look different elsewhere.
    struct Result : MvOutcome
    {
        QString projectPath; ///< of the project in the folder, or in the archive
        int fotoCount = 0;
        QStringList missing; ///< photos that cannot be read; the pages have them in their place all the same
    };

    /// The name, without a suffix, is that of the project file, and of the folder in an archive.
    MvProjectPack(const MvCalendarDocument &document, const QString &name);

    /// The entries that the pages show; without them the packed calendar shows none.
    void setEntries(const MvCalendarEventList &events) { m_events = events; }

    /// Makes the folder, which must not be there yet or be empty: whole, or not at all.
    Result writeFolder(const QString &path) const;
    /// Writes a ZIP archive, in which everything lies in one folder. An existing file is replaced when the new one is
    /// complete.
    Result writeZip(const QString &path) const;

private:
    /// A file of the pack: a copy of another, or a content.
    struct Item
    {
        QString name; // relative, with slashes
        QString source;
        QByteArray content;
    };
    struct Contents : Result
    {
        QList<Item> items;
    };

    /// What would lie in the folder of that path.
    Contents contents(const QString &folder) const;
    void takeFotos(MvCalendarDocument &document, const QString &folder, Contents &contents) const;
    void takeEntries(MvCalendarDocument &document, const QString &folder, Contents &contents) const;
    void noteOwnLayouts(Contents &contents) const;
    /// The document without what is on none of its pages.
    MvCalendarDocument trimmed() const;

    MvCalendarDocument m_document;
    QString m_name;
    MvCalendarEventList m_events;
};
