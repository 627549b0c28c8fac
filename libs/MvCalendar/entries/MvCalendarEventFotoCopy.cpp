// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCalendarEventFotoCopy.h"

#include "MvCalendar/MvCalendarEvent.h"
#include "MvCore/MvSafeFileWriter.h"
#include "MvFoto/MvFotoAccess.h"
#include "MvFoto/MvFotoBin.h"

#include <QBuffer>
#include <QDir>
#include <QImageWriter>

namespace {

QByteArray encoded(const QImage &image, const QString &suffix)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    QImageWriter writer(&buffer, suffix.toLatin1());
    return writer.write(image) ? bytes : QByteArray();
}

} // namespace

bool MvCalendarEventFotoCopy::isInFolder(const QFileInfo &file)
{
    return file.dir() == MvCalendarEvent::imageDirectory();
}

MvCalendarEventFotoCopy::Copy MvCalendarEventFotoCopy::of(const MvFoto &foto)
{
    const QString name = QDir::toNativeSeparators(foto.localFilePath());
    const QImage image = MvFotoAccess::midRes(foto, MvCalendarEvent::fotoQuality, MvCalendarEvent::fotoCaching);
    if (image.isNull()) {
        const QString reason = MvFotoAccess::error(foto);
        return {{tr("Das Foto „%1“ kann nicht gelesen werden. %2").arg(name, reason).trimmed(), {}}, {}};
    }
    if (isInFolder(foto.localFileInfo()))
        return {{}, MvFoto(foto.localFileInfo())};
    const Saved saved = save(image, foto);
    if (!saved.isOk())
        return {{tr("Das Foto „%1“ ließ sich nicht in den Fotoordner kopieren. %2").arg(name, saved.error), {}}, {}};
    return {{}, MvFoto(saved.file)};
}

MvCalendarEventFotoCopy::Saved MvCalendarEventFotoCopy::save(const QImage &image, const MvFoto &foto)
{
    const QString name =
        MvMediaFormat::createFilename(foto.mediaFormat(), foto.filenameHint(), foto.fileExtensionHint());
    const QFileInfo file = MvFotoBin(MvCalendarEvent::imageDirectory()).reserve(name);
    const QByteArray bytes = encoded(image, file.suffix());
    const QString error = bytes.isEmpty() ? tr("Das Bild ließ sich nicht umwandeln.")
                                          : MvSafeFileWriter::write(file, bytes, MvSafeFileWriter::Backups::None).error;
    if (!error.isEmpty())
        QFile::remove(file.absoluteFilePath());
    return {{error, {}}, QFileInfo(file.absoluteFilePath())};
}
