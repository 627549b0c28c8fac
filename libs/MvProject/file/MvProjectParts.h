// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvXML/MvXMLLoader.h"

#include <QByteArray>

/// The bytes of a project file in two: the list of entries that stands last in it, which may be as long as any list,
/// and all else, of which a document is built in memory. Only a list as programs write it is taken apart; in other
/// files all is document.
class MvProjectParts
{
public:
    /// The bytes must outlive this.
    explicit MvProjectParts(const QByteArray &bytes);

    bool hasList() const { return m_listSize > 0; }
    /// From the list's first tag to its last one; no copy.
    QByteArray list() const { return QByteArray::fromRawData(m_bytes.constData() + m_listStart, m_listSize); }
    /// Of the list's start, from 1.
    int listLine() const;
    /// What a file without the list would be.
    QByteArray document() const;

    /// Why bytes that are about to be written could not be read again; none when they could.
    MvXMLLoader::Error check() const;

private:
    const QByteArray &m_bytes;
    qsizetype m_listStart = 0;
    qsizetype m_listSize = 0;
};
