// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QCoreApplication>
#include <QFileInfo>
#include <QString>
#include <QStringList>

class QDomElement;

/// Looks for words in the schemas of a file that nothing understands: typing errors, which reading passes over. Each is
/// one warning with file, line, id and word.
class MvSchemaFileCheck
{
    Q_DECLARE_TR_FUNCTIONS(MvSchemaFileCheck)

public:
    /// Without a file, warnings have no place.
    explicit MvSchemaFileCheck(const QFileInfo &file)
        : m_file(file)
    {}

    /// Types of cells and colours of an element "calendararea".
    void checkColors(const QDomElement &area) const;
    /// Kind, rendering information, paper, types and sides of cells. Says whether the layout can be offered: one whose
    /// kind nobody knows would be another layout.
    bool checkLayout(const QDomElement &area) const;

    /// Whether there is the kind of calendarium that a layout names.
    static bool isKnownKind(const QDomElement &layout);

private:
    void warnOfWords(const QDomElement &place, const QString &schema, const QString &attribute,
                     const QStringList &unknown) const;

    QFileInfo m_file;
};
