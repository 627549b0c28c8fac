// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProductBase/MvVCardReader.h"

#include "MvProductBase/MvVCardBirthdays.h"
#include "MvProductBase/MvVCardStream.h"

#include <QBuffer>
#include <QHash>
#include <QImageReader>

using namespace Qt::StringLiterals;

namespace {

constexpr int longestPictureSide = 1200;          // pixels: a day's cell needs no more
constexpr qint64 mostPixels = 32LL * 1024 * 1024; // a small file may claim to be large

QImage decoded(QByteArray bytes)
{
    QBuffer buffer(&bytes);
    QImageReader reader(&buffer);
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(true);
    static const QList<QByteArray> formats{"jpeg", "png", "gif", "bmp", "webp"};
    const QSize size = formats.contains(reader.format()) ? reader.size() : QSize();
    if (size.isEmpty() || qint64(size.width()) * size.height() > mostPixels)
        return {};
    if (size.width() > longestPictureSide || size.height() > longestPictureSide)
        reader.setScaledSize(size.scaled(longestPictureSide, longestPictureSide, Qt::KeepAspectRatio));
    return reader.read();
}

/// Collects the cards of one source after the other.
class Collector
{
public:
    void take(MvVCardStream &&stream)
    {
        m_birthdays.beginFile();
        MvVCard card;
        while (stream.next(&card))
            if (m_birthdays.add(card) && card.hasPicture())
                m_pictures.insert(m_birthdays.cardCount() - 1, card.isPictureTooLarge ? QByteArray() : card.picture());
        if (const QString error = stream.error(); !error.isEmpty())
            m_errors.append(error);
    }

    MvVCardReader::Content content(const MvVCardReader::PictureDecoder &decoder)
    {
        const MvVCardBirthdays::Result result = m_birthdays.result();
        MvVCardReader::Content content;
        for (const MvVCardBirthdays::Person &person : result.persons) {
            if (person.isRepeated)
                continue;
            const QImage image = takeImage(person, decoder, &content.unreadablePictures);
            content.persons.append(MvSimplePerson(person.name, person.date, image, person.uuid));
        }
        content.cardCount = m_birthdays.cardCount();
        content.withoutDate = m_birthdays.withoutDate();
        content.withoutName = m_birthdays.withoutName();
        content.notUnderstood = result.notUnderstood;
        content.error = m_errors.join(u'\n');
        return content;
    }

private:
    /// Several people of one card share its image.
    QImage takeImage(const MvVCardBirthdays::Person &person, const MvVCardReader::PictureDecoder &decoder,
                     QStringList *unreadable)
    {
        if (m_imageOfCard.first == person.card)
            return m_imageOfCard.second;
        const auto picture = m_pictures.constFind(person.card);
        if (picture == m_pictures.cend())
            return {};
        m_imageOfCard = {person.card, decoder ? decoder(*picture) : decoded(*picture)};
        m_pictures.erase(picture);
        if (m_imageOfCard.second.isNull())
            unreadable->append(person.name);
        return m_imageOfCard.second;
    }

    MvVCardBirthdays m_birthdays;
    QHash<int, QByteArray> m_pictures; // encoded, by the number of the card
    std::pair<int, QImage> m_imageOfCard{-1, {}};
    QStringList m_errors;
};

} // namespace

MvVCardReader::Content MvVCardReader::read(const QFileInfo &file, const PictureDecoder &decoder)
{
    return read(QList{file}, decoder);
}

MvVCardReader::Content MvVCardReader::read(const QList<QFileInfo> &files, const PictureDecoder &decoder)
{
    Collector collector;
    for (const QFileInfo &file : files)
        collector.take(MvVCardStream(file));
    return collector.content(decoder);
}

MvVCardReader::Content MvVCardReader::read(const QByteArray &bytes, const PictureDecoder &decoder)
{
    QBuffer buffer;
    buffer.setData(bytes);
    buffer.open(QIODevice::ReadOnly);
    Collector collector;
    collector.take(MvVCardStream(&buffer));
    return collector.content(decoder);
}
