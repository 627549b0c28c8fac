// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvXML/MvXMLFile.h"

#include <QDomDocument>
#include <QDomElement>

/// Loading XML files as documents, with all checks of MvXMLFile before one is built.
class MVXML_EXPORT MvXMLLoader : public MvXMLFile
{
public:
    /// The document; a null one on error, which is then described in `error` when given.
    /// Shipped files (":/...") are part of the program: they pass unchecked. Directories, devices and pipes are
    /// refused.
    static QDomDocument loadDocument(const QFileInfo &file, Error *error = nullptr);
    static QDomDocument parse(const QByteArray &bytes, Error *error = nullptr);
    /// The root element; a null one on error. A file that exists but cannot be read logs one warning with file and
    /// place; a missing file is nothing to tell.
    static QDomElement loadDocumentElement(const QFileInfo &file);
};
