#include "MvCore/MvSafeFileWriter.h"

#include <QSaveFile>

MvSafeFileWriter::Result MvSafeFileWriter::write(const QFileInfo &file, const QByteArray &content)
{
    QSaveFile device(file.filePath());
    if (!device.open(QIODevice::WriteOnly) || device.write(content) != content.size() || !device.commit())
        return {device.errorString()};
    return {};
}
