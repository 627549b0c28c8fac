// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProject/MvProjectFile.h"

#include "MvCore/MvSafeFileWriter.h"
#include "MvProject/MvProjectParts.h"
#include "MvProject/MvProjectReader.h"
#include "MvProject/MvProjectWriter.h"

using namespace Qt::StringLiterals;

QString MvProjectFile::suffix()
{
    return u"mvcalendar"_s;
}

MvProjectFile::Content MvProjectFile::read(const QFileInfo &file)
{
    return MvProjectReader(QFileInfo(file.filePath())).read(); // the given QFileInfo may have cached an older state
}

MvOutcome MvProjectFile::write(const MvCalendarDocument &document, const QFileInfo &file)
{
    return write(document, {}, file);
}

MvOutcome MvProjectFile::write(const MvCalendarDocument &document, const Entries &entries, const QFileInfo &file)
{
    const QByteArray bytes = toBytes(document, file.absoluteDir(), {}, {}, entries);
    const MvXMLLoader::Error error = MvProjectParts(bytes).check();
    if (error.isError())
        return {tr("%1: So gespeichert ließe sich das Projekt nicht wieder öffnen. %2")
                    .arg(QDir::toNativeSeparators(file.filePath()), error.message),
                {}};
    return MvSafeFileWriter::write(file, bytes);
}

QByteArray MvProjectFile::toBytes(const MvCalendarDocument &document, const QDir &folder, const QString &originalPath,
                                  const QByteArray &originalStamp, const Entries &entries)
{
    return MvProjectWriter(folder).write(document, originalPath, originalStamp, entries);
}
