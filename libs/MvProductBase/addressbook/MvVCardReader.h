// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCore/MvOutcome.h"
#include "MvCore/MvSimplePersonList.h"
#include "MvProductBase/MvVCardDate.h"
#include "MvProductBase/mvproductbase_export.h"

#include <QByteArray>
#include <QFileInfo>
#include <QImage>
#include <QList>
#include <QString>
#include <QStringList>

#include <functional>

class MvVCardStream;

/// Reads the people with a birthday or an anniversary from files of visiting cards, with their pictures.
class MVPRODUCTBASE_EXPORT MvVCardReader
{
public:
    /// Stands for the year of a birthday whose year nobody knows.
    static constexpr int unknownYear = MvVCardDate::unknownYear;

    /// Makes an image of the bytes of its file; null when it cannot or does not want to.
    using PictureDecoder = std::function<QImage(const QByteArray &bytes)>;

    /// What cards hold. The error has a line for each file; without one, cards were read.
    struct Content : MvOutcome
    {
        MvSimplePersonList persons;     // each with name and date; a card with an anniversary gives one more for it
        int cardCount = 0;              // with and without dates
        int withoutDate = 0;            // cards
        int withoutName = 0;            // cards that have a date
        QStringList notUnderstood;      // dates: "name: what stands there"; also those that are read in two ways
        QStringList unreadablePictures; // whose
    };

    /// Only the pictures of those who are in `persons` are decoded, by the decoder, or as far as they are small by one
    /// of our own.
    static Content read(const QFileInfo &file, const PictureDecoder &decoder = {});
    static Content read(const QByteArray &bytes, const PictureDecoder &decoder = {});
    /// All files together: each person once.
    static Content read(const QList<QFileInfo> &files, const PictureDecoder &decoder = {});
};
