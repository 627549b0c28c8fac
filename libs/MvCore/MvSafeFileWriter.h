#pragma once

#include "MvCore/mvcore_export.h"

#include <QByteArray>
#include <QFileInfo>
#include <QString>

/// The one way to write a user's file: the new content is complete and on disk before it takes the old one's place.
class MVCORE_EXPORT MvSafeFileWriter
{
public:
    struct Result
    {
        QString error; // for a person; empty when the file is in place

        bool isOk() const { return error.isEmpty(); }
    };

    static Result write(const QFileInfo &file, const QByteArray &content);
};
