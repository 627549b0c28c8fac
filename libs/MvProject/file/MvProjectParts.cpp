// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProject/MvProjectParts.h"

#include "MvCalendar/MvCalendarEventFile.h"
#include "MvProject/MvProjectVocabulary.h"

/// Behind the list stands nothing but the end of the root element: were the list in a comment or deeper inside, what is
/// left without it would be no document, and the file is read as a whole.
MvProjectParts::MvProjectParts(const QByteArray &bytes)
    : m_bytes(bytes)
{
    const QByteArray name = MvCalendarEventFile::elementName().toLatin1();
    const QByteArray first = '<' + name + '>';
    const QByteArray last = "</" + name + '>';
    const qsizetype start = bytes.indexOf(first);
    const qsizetype end = bytes.lastIndexOf(last) + last.size();
    if (start < 0 || end < start || !bytes.startsWith(R"(<?xml version="1.0" encoding="UTF-8"?>)") ||
        bytes.lastIndexOf(first) != start)
        return;
    if (QByteArrayView(bytes).sliced(end).trimmed() != "</" + MvProjectVocabulary::root.toLatin1() + '>')
        return;
    m_listStart = start;
    m_listSize = end - start;
}

int MvProjectParts::listLine() const
{
    return int(QByteArrayView(m_bytes).first(m_listStart).count('\n')) + 1;
}

QByteArray MvProjectParts::document() const
{
    return hasList() ? m_bytes.first(m_listStart) + m_bytes.sliced(m_listStart + m_listSize) : m_bytes;
}

MvXMLLoader::Error MvProjectParts::check() const
{
    const MvXMLLoader::Error error = MvXMLLoader::check(document());
    return hasList() && !error.isError() ? MvXMLLoader::check(list(), MvXMLLoader::Limits::ofStreams()) : error;
}
