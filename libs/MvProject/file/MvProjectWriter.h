// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvProject/MvCalendarDocument.h"

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
    {}

    QByteArray write(const MvCalendarDocument &document, const QString &originalPath,
                     const QByteArray &originalStamp) const;

private:
    void writePaper(QDomElement &root, const MvPageFormat &format) const;
    void writePage(QDomElement &root, const MvCalendarPage &page) const;
    void writeCalendarium(QDomElement &element, const MvCalendarPage &page) const;
    void writeContent(QDomElement &element, const MvCalendariumContentConfig &content) const;
    void writeFoto(QDomElement &element, const MvFotoFrame &foto) const;

    QDir m_folder;
};
