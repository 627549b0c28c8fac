// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvProject/MvFotoPool.h"
#include "MvProject/MvPageBackground.h"
#include "MvProject/MvPageElement.h"
#include "MvProject/MvPageFormat.h"

#include <QCoreApplication>
#include <QDir>
#include <QDomElement>

class MvProjectNotes;

/// Reads what stands on pages from a project file. What is broken takes its default, and is noted.
class MvProjectElementReader
{
    Q_DECLARE_TR_FUNCTIONS(MvProjectElementReader)

public:
    /// Relative paths count from the folder; the notes must outlive the reader. An element whose place is not readable
    /// stands in the content rectangle of the paper.
    MvProjectElementReader(const QDir &folder, const MvPageFormat &format, MvProjectNotes &notes)
        : m_folder(folder)
        , m_format(format)
        , m_notes(notes)
    {}

    MvFotoElement readFoto(const QDomElement &element);
    /// The children with the tag; of those of an unknown kind nothing is left.
    QList<MvPageElement> readElements(const QDomElement &parent, const QString &tag);
    MvPageBackground readBackground(const QDomElement &element);
    MvFotoPool readPool(const QDomElement &element);

private:
    QString readPath(const QDomElement &element) const;
    QPointF readFocus(const QDomElement &element) const;
    QRectF readRect(const QDomElement &element);
    MvTextElement readText(const QDomElement &element);
    MvCalendariumElement readCalendarium(const QDomElement &element);
    QColor readColor(const QDomElement &element, const QString &name, const QColor &otherwise);

    QDir m_folder;
    MvPageFormat m_format;
    MvProjectNotes &m_notes;
};
