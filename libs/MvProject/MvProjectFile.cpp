#include "MvProject/MvProjectFile.h"

#include "MvCore/MvSafeFileWriter.h"
#include "MvProject/MvProjectReader.h"
#include "MvProject/MvProjectWriter.h"

using namespace Qt::StringLiterals;

QString MvProjectFile::suffix()
{
    return u"mvcalendar"_s;
}

MvProjectFile::Content MvProjectFile::read(const QFileInfo &file)
{
    return MvProjectReader(QFileInfo(file.filePath())).read(); // the given one may remember an older state
}

QString MvProjectFile::write(const MvCalendarDocument &document, const QFileInfo &file)
{
    const MvSafeFileWriter::Result result = MvSafeFileWriter::write(file, toBytes(document, file.absoluteDir()));
    return result.isOk() ? QString() : u"%1: %2"_s.arg(QDir::toNativeSeparators(file.filePath()), result.error);
}

QByteArray MvProjectFile::toBytes(const MvCalendarDocument &document, const QDir &folder, const QString &originalPath)
{
    return MvProjectWriter(folder).write(document, originalPath);
}
