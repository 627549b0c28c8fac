// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCalendarEventFotoSweep.h"

#include "MvFoto/MvFotoBin.h"

#include <QFile>
#include <QRegularExpression>
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

/// Characters that are written as numbers, decoded.
QString withoutNumbers(const QString &text)
{
    static const QRegularExpression number(u"&#(?:x([0-9a-fA-F]{1,6})|([0-9]{1,7}));"_s);
    QString plain;
    qsizetype done = 0;
    for (auto all = number.globalMatch(text); all.hasNext();) {
        const QRegularExpressionMatch match = all.next();
        const bool isHex = match.capturedLength(1) > 0;
        const char32_t code = isHex ? match.captured(1).toUInt(nullptr, 16) : match.captured(2).toUInt();
        plain += QStringView(text).mid(done, match.capturedStart() - done);
        plain += QString::fromUcs4(&code, 1);
        done = match.capturedEnd();
    }
    return plain + text.mid(done);
}

QString unescaped(QStringView text)
{
    QString plain = text.trimmed().toString();
    if (plain.contains("&#"_L1))
        plain = withoutNumbers(plain);
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
        const QStringView part = QStringView(text).mid(start, end - start);
        start = end + 1;
        for (const QString &name : unescaped(part).split(u'/')) { // one that was escaped, too
            if (m_known.contains(name))
                m_needed.insert(name);
        }
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

QStringList MvCalendarEventFotoSweep::unneeded(const QDateTime &now) const
{
    QStringList names;
    const QFileInfoList files = m_folder.entryInfoList(QDir::Files, QDir::Unsorted);
    for (const QFileInfo &file : files) {
        const bool isYoung = file.lastModified().secsTo(now) < youngSeconds;
        if (m_known.contains(file.fileName()) && !isYoung && !m_needed.contains(file.fileName()))
            names.append(file.fileName());
    }
    return names;
}

int MvCalendarEventFotoSweep::run(const QDateTime &now) const
{
    const MvFotoBin bin(m_folder);
    for (const QString &name : bin.names()) {
        if (m_needed.contains(name))
            bin.fetchBack(name);
    }
    int count = 0;
    for (const QString &name : unneeded(now))
        count += bin.put(name, now.date()) ? 1 : 0;
    bin.empty(now.date(), m_needed);
    return count;
}
