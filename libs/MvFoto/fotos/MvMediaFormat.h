// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvFoto/mvfoto_export.h"

#include <QFileInfo>
#include <QString>

/// The format of a photo's file.
class MVFOTO_EXPORT MvMediaFormat
{
public:
    enum Format {
        Unknown,
        Jpeg,
        Png,
        Gif,
        Bmp,
        Tiff,
        WebP,
        Heic,
    };

    MvMediaFormat() = default;
    MvMediaFormat(Format format) // implicit: a format is a value of its class
        : m_format(format)
    {}

    /// The format of the file's content, whatever its name says; unknown when it cannot be read.
    static MvMediaFormat ofFile(const QFileInfo &file);

    /// The endings of such files' names, as the filters of file dialogs want them: "*.jpg *.jpeg …".
    static QString namePatterns();

    /// A name for a copy of a photo in a format that can be written: a JPEG keeps its extension, photos of unknown
    /// format and those of telephones (HEIC) become "jpg", all others, which may have transparent parts, "png". The
    /// hint is cleaned by MvFileName; one without anything gives "foto".
    static QString createFilename(const MvMediaFormat &format, const QString &filenameHint,
                                  const QString &fileExtensionHint);

    Format format() const { return m_format; }
    bool isValid() const { return m_format != Unknown; }

    bool operator==(const MvMediaFormat &) const = default;

private:
    Format m_format = Unknown;
};
