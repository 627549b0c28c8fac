// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QByteArray>
#include <QString>

/// The bytes of a file from elsewhere as text. Files do not say their encoding: a mark does, zeros between letters, or
/// that the bytes are no UTF-8.
class MvFileText
{
public:
    /// "UTF-8", "UTF-16", "UTF-16LE", "UTF-16BE", or "Windows-1252" for everything else.
    static QString encodingOf(const QByteArray &bytes);
    /// Without a mark; lines end with a line feed. Bytes that are wrong in the encoding become replacement characters.
    static QString decoded(const QByteArray &bytes, const QString &encoding);
};
