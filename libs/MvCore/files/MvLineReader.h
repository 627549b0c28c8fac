// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCore/mvcore_export.h"

#include <QByteArray>
#include <QStringDecoder>

#include <functional>
#include <optional>

class QIODevice;

/// Cuts what a device gives into lines, piece by piece: however much it is, memory holds a piece and a line.
///
/// A line ends with a line feed, with a carriage return, or with several of these and a line feed. UTF-16 and UTF-32
/// come as UTF-8, told by their mark or by the letter B that a file of visiting cards begins with; everything else
/// comes as it is. Byte order marks are left out at the start of every line, since files get joined.
class MVCORE_EXPORT MvLineReader
{
public:
    /// Asked after each piece, with the number of bytes read so far; false ends the reading.
    using GoOn = std::function<bool(qint64 bytesRead)>;

    static constexpr qint64 pieceSize = 64LL * 1024;

    /// The device is open, is not owned and must outlive the reader. Of a line that is longer than `longestLine`
    /// bytes, the rest is dropped.
    MvLineReader(QIODevice *device, qsizetype longestLine, const GoOn &goOn = {});

    /// The next line without its end; false when there is none.
    bool next(QByteArray *line);
    /// Whether the line that next() gave has lost its rest.
    bool isCut() const { return m_isCut; }

private:
    bool fill();
    bool readPiece();
    void skipLineEnd();
    void append(QByteArray *line, const char *bytes, qsizetype count);

    QIODevice *m_device;
    qsizetype m_longestLine;
    GoOn m_goOn;
    std::optional<QStringDecoder> m_decoder; // only where UTF-8 has to be made of it
    QByteArray m_piece;
    qsizetype m_at = 0; // in the piece
    qint64 m_bytesRead = 0;
    bool m_isAtEnd = false;
    bool m_isAfterReturn = false; // of the line before
    bool m_isCut = false;
};
