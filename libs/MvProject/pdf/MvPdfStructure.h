// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvProject/MvPdfElement.h"

class MvPdfFile;

/// The order in which a PDF is read aloud: a document of sections, one for each page.
class MvPdfStructure
{
public:
    /// The file outlives it.
    explicit MvPdfStructure(MvPdfFile &file);

    /// Takes a page in. Gives the number that its dictionary names itself by ("StructParents").
    int addPage(int pageObject, const MvPdfElement &section, int contentCount);

    /// Writes the root. Gives what the catalog says of it; nothing where there are no pages. Once.
    QByteArray finish();

private:
    /// Gives the object.
    int write(const MvPdfElement &element, int around, int pageObject, QList<int> &owners);

    MvPdfFile &m_file;
    const int m_document;
    QList<int> m_sections;
    QList<QByteArray> m_owners; // by page
};
