// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvProject/MvCalendarDocument.h"
#include "MvProject/MvProjectElementWriter.h"
#include "MvProject/MvProjectFile.h"

#include <QByteArray>
#include <QDir>
#include <QDomElement>
#include <QString>

/// Writes a document as a project file's bytes; used by MvProjectFile. The same document always gives the same bytes.
class MvProjectWriter
{
public:
    /// Photos below the folder are written relative to it.
    explicit MvProjectWriter(const QDir &folder)
        : m_folder(folder)
        , m_elements(folder)
    {}

    QByteArray write(const MvCalendarDocument &document, const QString &originalPath, const QByteArray &originalStamp,
                     const MvProjectFile::Entries &entries);

private:
    void writePaper(QDomElement &root, const MvPageFormat &format);
    void writePage(QDomElement &root, const MvCalendarPage &page);
    void writeSparePage(QDomElement &root, const QDate &month, const MvCalendarPage &page);
    void writePool(QDomElement &root, const MvFotoPool &pool);
    /// Template, photo and elements.
    void writeArrangement(QDomElement &element, const MvCalendarPage &page);
    void writeFrame(QDomElement &parent, const MvFotoFrame &foto);
    static void writeCalendarium(QDomElement &element, const MvCalendarPage &page);
    static void writeContent(QDomElement &element, const MvCalendariumContentConfig &content);

    QDir m_folder;
    MvProjectElementWriter m_elements;
};
