#pragma once

#include "MvCore/MvSimplePersonList.h"
#include "MvCore/mvcore_export.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QFileInfo>
#include <QString>

/// Reads the people with a birthday or an anniversary from a file of visiting cards (vCard 2.1, 3.0 and 4.0).
///
/// Folded lines, quoted-printable, character sets and escapes are undone as the card's version wants it. Cards from
/// other programs are often a little wrong: what can be understood is taken, the rest is left out.
class MVCORE_EXPORT MvVCardReader
{
    Q_DECLARE_TR_FUNCTIONS(MvVCardReader)

public:
    /// Stands for the year of a birthday whose year nobody knows; a leap year, so that 29 February can be one.
    static constexpr int unknownYear = 1604;
    static constexpr qint64 mostBytes = 64 * 1024 * 1024;

    struct Content
    {
        MvSimplePersonList persons; // each with name and date; a card with an anniversary gives one more for it
        int cardCount = 0;          // with and without dates
        QString error;              // for a person; empty when cards were read
    };

    /// The uuid of a person is made from the card's UID, or from name and date without one, so that the same card
    /// gives the same uuid every time.
    static Content read(const QFileInfo &file);
    static Content read(const QByteArray &bytes);
};
