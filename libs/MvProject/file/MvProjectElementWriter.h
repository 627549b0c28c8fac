// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvProject/MvPageBackground.h"
#include "MvProject/MvPageElement.h"
#include "MvXML/MvXMLBuilder.h"

#include <QDir>
#include <QDomElement>
#include <QString>

/// Writes what stands on pages into a project file, and keeps account of whether that needs its second version: what
/// has its default value is not written, so that plain calendars stay what older programs read.
class MvProjectElementWriter
{
public:
    /// Photos below the folder are written relative to it.
    explicit MvProjectElementWriter(const QDir &folder)
        : m_folder(folder)
    {}

    /// Something was written that the first version does not know.
    bool needsSecondVersion() const { return m_needsSecondVersion; }

    /// The attributes of the photo; those that the first version has always.
    void writeFoto(QDomElement &element, const MvFotoElement &foto);
    void writeElement(QDomElement &parent, const QString &tag, const MvPageElement &written);
    void writeBackground(QDomElement &parent, const MvPageBackground &background);
    QString pathText(const QString &path) const;

    QDomElement addNewElement(QDomElement &parent, const QString &tag)
    {
        m_needsSecondVersion = true;
        return MvXMLBuilder::buildDomElement(parent, tag);
    }
    template <typename Value>
    void addIfNew(QDomElement &element, const QString &name, const Value &value, const Value &usual)
    {
        if (value == usual)
            return;
        MvXMLBuilder::addAttribute(element, name, value);
        m_needsSecondVersion = true;
    }

private:
    void writeText(QDomElement &element, const MvTextElement &text);
    void writeCalendarium(QDomElement &element, const MvCalendariumElement &calendarium);

    QDir m_folder;
    bool m_needsSecondVersion = false;
};
