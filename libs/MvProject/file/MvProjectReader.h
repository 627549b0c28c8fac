// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvProject/MvProjectElementReader.h"
#include "MvProject/MvProjectFile.h"
#include "MvProject/MvProjectNotes.h"
#include "MvXML/MvXMLLoader.h"

#include <QCoreApplication>
#include <QDomElement>
#include <QFileInfo>
#include <QList>

class MvProjectParts;

/// Reads one project file; used by MvProjectFile.
class MvProjectReader
{
    Q_DECLARE_TR_FUNCTIONS(MvProjectReader)

public:
    explicit MvProjectReader(const QFileInfo &file)
        : m_file(file)
        , m_notes(file)
    {}

    MvProjectFile::Content read();

private:
    void readRoot(const QDomElement &root);
    void readPages(const QDomElement &root);
    MvXMLLoader::Error readList(const MvProjectParts &parts);
    void readEntries(const QByteArray &bytes);
    MvPageFormat readPaper(const QDomElement &root);
    MvDateRange readRange(const QDomElement &root);
    MvCalendarPage readPage(const QDomElement &element);
    /// Template, photo and elements of a page or a spare one.
    void readArrangement(const QDomElement &element, MvCalendarPage &page);
    MvPageTemplate templateOf(const QDomElement &place, const QString &id);
    void readAppearance(const QDomElement &element, MvCalendarPage &page);
    void readContent(const QDomElement &element, MvCalendarPage &page);
    MvFotoFrame readFrame(const QDomElement &element);
    QMap<QDate, MvCalendarPage> readSparePages(const QDomElement &root);
    MvProjectElementReader elementReader();
    QDir documentFolder() const;
    QDate month(const QDomElement &element, const QString &name);

    void fail(const QDomElement &place, const QString &message);
    /// What to do when the file cannot be used.
    QString advice() const;

    QFileInfo m_file;
    MvProjectNotes m_notes;
    MvProjectFile::Content m_content;
};
