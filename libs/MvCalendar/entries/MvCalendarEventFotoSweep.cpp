// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCalendarEventFotoSweep.h"

#include "MvFoto/MvFotoBin.h"

#include <QFile>
#include <QStringDecoder>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 largestList = 256 << 20; // bytes

QString textOf(const QByteArray &bytes)
{
    const QStringConverter::Encoding encoding =
        QStringConverter::encodingForData(bytes, u'<').value_or(QStringConverter::Utf8);
    return QStringDecoder(encoding)(bytes);
}

bool isBetweenNames(QChar c)
{
    return c == u'/' || c == u'\\' || c == u'<' || c == u'>' || c == u'"' || c == u'\n' || c == u'\r';
}

QString unescaped(QStringView text)
{
    QString plain = text.trimmed().toString();
    if (plain.contains(u'&'))
        plain.replace("&lt;"_L1, "<"_L1)
            .replace("&gt;"_L1, ">"_L1)
            .replace("&quot;"_L1, "\""_L1)
            .replace("&apos;"_L1, "'"_L1)
            .replace("&amp;"_L1, "&"_L1);
    return plain;
}

} // namespace

MvCalendarEventFotoSweep::MvCalendarEventFotoSweep(const QDir &fotoFolder)
    : m_folder(fotoFolder)
{
    const QStringList names = m_folder.entryList(QDir::Files, QDir::Unsorted) + MvFotoBin(m_folder).names();
    m_known = QSet<QString>(names.cbegin(), names.cend());
}

bool MvCalendarEventFotoSweep::keepNamesIn(const QFileInfo &list)
{
    QFile file(list.filePath());
    if (!list.isFile() || list.size() > largestList || !file.open(QIODevice::ReadOnly))
        return false;
    const QByteArray bytes = file.readAll();
    return file.error() == QFileDevice::NoError && keepNamesIn(textOf(bytes));
}

/// Looks for the last parts of paths, not for elements: the file may be no list any more.
bool MvCalendarEventFotoSweep::keepNamesIn(const QString &text)
{
    qsizetype start = 0;
    for (qsizetype end = 0; end < text.size(); ++end) {
        if (!isBetweenNames(text.at(end)))
            continue;
        const QStringView name = QStringView(text).mid(start, end - start);
        start = end + 1;
        if (name.contains("&#"_L1)) // letters written as numbers: not by us
            return false;
        const QString plain = unescaped(name);
        if (m_known.contains(plain))
            m_needed.insert(plain);
    }
    const QStringView rest = QStringView(text).mid(start);
    if (text.trimmed().endsWith(u'>') || text.isEmpty())
        return true;
    for (const QString &name : std::as_const(m_known)) { // cut off within a name
        if (name.startsWith(unescaped(rest)))
            m_needed.insert(name);
    }
    return true;
}

int MvCalendarEventFotoSweep::run(const QDateTime &now) const
{
    const MvFotoBin bin(m_folder);
    for (const QString &name : bin.names()) {
        if (m_needed.contains(name))
            bin.fetchBack(name);
    }
    int count = 0;
    const QFileInfoList files = m_folder.entryInfoList(QDir::Files, QDir::Unsorted);
    for (const QFileInfo &file : files) {
        const bool isYoung = file.lastModified().secsTo(now) < youngSeconds;
        const bool isKnown = m_known.contains(file.fileName());
        if (isKnown && !isYoung && !m_needed.contains(file.fileName()) && bin.put(file.fileName(), now.date()))
            ++count;
    }
    bin.empty(now.date(), m_needed);
    return count;
}
