// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/mvcalendar_export.h"
#include "MvCore/MvOutcome.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QDomElement>
#include <QFileInfo>
#include <QList>
#include <QString>

#include <functional>
#include <optional>

/// The file of a user's colour schemas or layouts, which several running programs may share: what others have added,
/// changed or removed since it was read here is taken in before it is written, and it is written under its lock only.
///
/// The file holds one element "calendararea" per schema. A file that holds anything else, such as a schema whose id is
/// damaged, is set aside before it is overwritten.
class MVCALENDAR_EXPORT MvUserSchemaFile
{
    Q_DECLARE_TR_FUNCTIONS(MvUserSchemaFile)

public:
    struct Area
    {
        QString id;
        QDomElement element; // as this program writes the schema

        /// Equal id and equal content, whatever the order of attributes.
        friend bool operator==(const Area &a, const Area &b) { return a.id == b.id && a.content() == b.content(); }
        QString content() const;
    };
    using Areas = QList<Area>;

    /// Makes the area of an element of the file; nothing when this program would not write it back.
    using Decode = std::function<std::optional<Area>(const QDomElement &)>;

    /// What came of a saving; the error names the file.
    struct Saved : MvOutcome
    {
        Areas areas; // what the file holds now
    };

    MvUserSchemaFile(const QString &fileName, const QString &rootName, const Decode &decode);

    /// In the user's data folder.
    QFileInfo file() const;

    /// Reads the file: its root element, and the state that later changes of others are compared with. A null element
    /// when there is nothing to read; a file that exists but cannot be read logs a warning.
    QDomElement read();

    /// Writes the areas together with the changes of others. Never waits: while another program holds the lock, that is
    /// the error. An area whose id another program has given to another schema meanwhile is kept under a fresh id,
    /// which `renameArea` gives it.
    Saved save(const Areas &mine, const std::function<void(Area &)> &renameArea);

private:
    struct Content : MvOutcome // without an error there is a root
    {
        QDomElement root;
        Areas areas;
        bool isWhole = false; // all of it is in the areas, or there is no file
    };

    Content load() const;
    Areas merged(const Areas &mine, const Areas &theirs, const std::function<void(Area &)> &renameArea) const;
    MvOutcome write(const Areas &areas);

    QString m_fileName;
    QString m_rootName;
    Decode m_decode;
    Areas m_inFile; // when last read or written here
};
