// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvProductBase/MvVCard.h"
#include "MvProductBase/MvVCardLines.h"
#include "MvProductBase/mvproductbase_export.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <memory>

class QIODevice;

/// Gives the visiting cards of a file (vCard 2.1, 3.0 and 4.0) one after the other. The file may have any size: memory
/// holds one card.
///
/// Folded lines, quoted-printable, character sets and escapes are undone as the card's version wants it. Cards from
/// other programs are often a little wrong: what can be understood is taken, the rest is left out.
class MVPRODUCTBASE_EXPORT MvVCardStream
{
    Q_DECLARE_TR_FUNCTIONS(MvVCardStream)

public:
    using GoOn = MvLineReader::GoOn;

    /// Opens the file; folders, pipes and devices are refused.
    explicit MvVCardStream(const QFileInfo &file, const GoOn &goOn = {});
    /// The device is open, is not owned and must outlive this.
    explicit MvVCardStream(QIODevice *device, const GoOn &goOn = {});
    ~MvVCardStream();

    /// The next card; false at the end. The last one of a file that was cut off counts, too.
    bool next(MvVCard *card);
    /// Why there are no more cards, for a person: the file could not be read, or has none at all. Empty at the end of
    /// good cards, and when `goOn` has ended the reading.
    QString error() const;

private:
    class Builder;

    void open();
    void start(QIODevice *device, const GoOn &goOn);
    bool isNested(const MvVCardProperty &property) const;

    std::unique_ptr<QIODevice> m_file;
    QString m_path;
    QString m_openError;
    std::unique_ptr<MvVCardLines> m_lines; // null when the file could not be opened
    QByteArray m_nameBefore;               // of the property before
    bool m_isInCard = false;
    int m_cardLine = 0; // of the card that is being read
    int m_nested = 0;   // a card may contain the card of another person
    bool m_hasCards = false;
    bool m_isStopped = false;
};
