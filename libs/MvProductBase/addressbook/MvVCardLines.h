// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCore/MvLineReader.h"
#include "MvProductBase/MvVCardProperty.h"
#include "MvProductBase/mvproductbase_export.h"

#include <QByteArray>
#include <QList>

/// Cuts visiting cards, or calendars, into properties, one after the other: lines unfolded, soft breaks joined, names
/// and parameters apart. The time grows with the number of bytes alone, whatever they are.
class MVPRODUCTBASE_EXPORT MvVCardLines
{
public:
    static constexpr qsizetype longestPicture = 16LL * 1024 * 1024; // bytes of PHOTO, encoded
    static constexpr qsizetype longestText = 64LL * 1024;           // bytes of everything else

    /// The device is open, is not owned and must outlive this.
    explicit MvVCardLines(QIODevice *device, const MvLineReader::GoOn &goOn = {});

    /// The next property; false at the end. Lines that are none are left out.
    bool next(MvVCardProperty *property);

    /// Where the last property begins, from 1.
    int line() const { return m_line; }
    /// Lines up to the last property that are none, and the number of the first of them; 0 without any.
    int leftOutCount() const { return m_leftOutCount; }
    int firstLeftOut() const { return m_firstLeftOut; }

    static QList<MvVCardProperty> split(const QByteArray &bytes);

private:
    QByteArray takeLine();
    bool isFolded() const;
    bool isMoreOfPicture() const;
    QByteArray takeFolded();
    void takeBegin(const QByteArray &name);
    void takeValue(MvVCardProperty *property, const QByteArray &start, bool isStartCut);

    MvLineReader m_lines;
    QByteArray m_ahead; // the line after the one that was taken
    bool m_hasAhead = false;
    bool m_isAheadCut = false;
    bool m_isCalendar = false; // not cards
    bool m_isOldForm = false;
    int m_taken = 0; // lines, the one ahead included
    int m_line = 0;
    int m_leftOutCount = 0;
    int m_firstLeftOut = 0;
};
