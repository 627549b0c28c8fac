// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvFoto/MvExif.h"

#include <QRegularExpression>
#include <QStringDecoder>

#include <libexif/exif-data.h>

#include <algorithm>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

constexpr int earliestYear = 1839; // from which on there are photos

QByteArray textOf(const ExifContent *content, ExifTag tag)
{
    const ExifEntry *entry = exif_content_get_entry(const_cast<ExifContent *>(content), tag); // which it only reads
    if (!entry || entry->format != EXIF_FORMAT_ASCII || !entry->data)
        return {};
    const QByteArray text(reinterpret_cast<const char *>(entry->data), qsizetype(entry->size));
    return text.left(qMax(qsizetype(0), text.indexOf('\0') < 0 ? text.size() : text.indexOf('\0')));
}

int numberOf(const ExifData *data, ExifIfd part, ExifTag tag)
{
    const ExifEntry *entry = exif_content_get_entry(data->ifd[part], tag);
    if (!entry || entry->format != EXIF_FORMAT_SHORT || !entry->data || entry->size < 2)
        return 0;
    return exif_get_short(entry->data, exif_data_get_byte_order(const_cast<ExifData *>(data)));
}

QDateTime timeOf(const QByteArray &text, const QByteArray &fraction)
{
    static const QRegularExpression pattern(
        uR"(^\s*(\d{4})[:\-./](\d\d)[:\-./](\d\d)(?:[ T](\d\d):(\d\d)(?::(\d\d))?)?)"_s);
    const QRegularExpressionMatch match = pattern.match(QString::fromLatin1(text));
    const auto number = [&match](int group) { return match.capturedView(group).toInt(); };
    const QDate date(number(1), number(2), number(3));
    if (!date.isValid() || date.year() < earliestYear)
        return {};
    QTime time(number(4), number(5), number(6));
    if (!time.isValid())
        time = QTime(0, 0);
    const int milliseconds = fraction.trimmed().leftJustified(3, '0', true).toInt();
    return QDateTime(date, time.addMSecs(qBound(0, milliseconds, 999)), Qt::UTC);
}

QDateTime capturedOf(const ExifData *data)
{
    const ExifContent *camera = data->ifd[EXIF_IFD_EXIF];
    QDateTime time =
        timeOf(textOf(camera, EXIF_TAG_DATE_TIME_ORIGINAL), textOf(camera, EXIF_TAG_SUB_SEC_TIME_ORIGINAL));
    if (!time.isValid())
        time = timeOf(textOf(camera, EXIF_TAG_DATE_TIME_DIGITIZED), textOf(camera, EXIF_TAG_SUB_SEC_TIME_DIGITIZED));
    if (!time.isValid())
        time = timeOf(textOf(data->ifd[EXIF_IFD_0], EXIF_TAG_DATE_TIME), textOf(camera, EXIF_TAG_SUB_SEC_TIME));
    return time;
}

/// Cameras write their names, in capitals.
bool isByCamera(const QString &text)
{
    return text.startsWith(u"Exif_"_s) ||
           std::all_of(text.cbegin(), text.cend(), [](QChar c) { return c.unicode() < 0x80 && !c.isLower(); });
}

QString descriptionOf(const QByteArray &text)
{
    QStringDecoder utf8(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    QString description = utf8(text);
    if (utf8.hasError())
        description = QString::fromLatin1(text);
    description = description.simplified();
    return isByCamera(description) ? QString() : description;
}

QImageIOHandler::Transformations turnOf(int orientation)
{
    switch (orientation) {
    case 2:
        return QImageIOHandler::TransformationMirror;
    case 3:
        return QImageIOHandler::TransformationRotate180;
    case 4:
        return QImageIOHandler::TransformationFlip;
    case 5:
        return QImageIOHandler::TransformationFlipAndRotate90;
    case 6:
        return QImageIOHandler::TransformationRotate90;
    case 7:
        return QImageIOHandler::TransformationMirrorAndRotate90;
    case 8:
        return QImageIOHandler::TransformationRotate270;
    default:
        return QImageIOHandler::TransformationNone;
    }
}

} // namespace

MvExif::MvExif(const QByteArray &block)
{
    const QByteArray mark("Exif\0\0", 6);
    const QByteArray marked = block.startsWith(mark) ? block : mark + block;
    if (marked.size() <= mark.size())
        return;
    const std::unique_ptr<ExifData, decltype(&exif_data_unref)> data(exif_data_new(), exif_data_unref);
    if (!data)
        return;
    exif_data_unset_option(data.get(), EXIF_DATA_OPTION_FOLLOW_SPECIFICATION); // nothing is to be added
    exif_data_load_data(data.get(), reinterpret_cast<const unsigned char *>(marked.constData()), uint(marked.size()));
    m_captured = capturedOf(data.get());
    m_description = descriptionOf(textOf(data->ifd[EXIF_IFD_0], EXIF_TAG_IMAGE_DESCRIPTION));
    m_turn = turnOf(numberOf(data.get(), EXIF_IFD_0, EXIF_TAG_ORIENTATION));
    constexpr int uncalibrated = 0xffff;
    m_isAdobeRgb = numberOf(data.get(), EXIF_IFD_EXIF, EXIF_TAG_COLOR_SPACE) == uncalibrated &&
                   textOf(data->ifd[EXIF_IFD_INTEROPERABILITY], EXIF_TAG_INTEROPERABILITY_INDEX) == "R03";
}
