// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProductBase/MvVCardLines.h"

#include <QBuffer>

#include <utility>

namespace {

constexpr qsizetype mostParameters = 64;

/// Looks for a character outside of quotation marks, further along each time the line has grown.
class Search
{
public:
    qsizetype find(const QByteArray &line, QByteArrayView stops)
    {
        for (; m_at < line.size(); ++m_at) {
            const char c = line.at(m_at);
            if (c == '"')
                m_isQuoted = !m_isQuoted;
            else if (!m_isQuoted && stops.contains(c))
                return m_at++;
        }
        return -1;
    }

private:
    qsizetype m_at = 0;
    bool m_isQuoted = false;
};

void parseParameter(const QByteArray &part, MvVCardProperty *property)
{
    const qsizetype equals = part.indexOf('=');
    const QByteArray name = part.left(qMax<qsizetype>(equals, 0)).trimmed().toUpper();
    QByteArray value = part.mid(equals + 1).trimmed();
    value.replace('"', "");
    QByteArray &known = property->parameters[name];
    if (!known.isEmpty())
        known.append(',');
    known.append(value);
}

/// Everything before the colon.
MvVCardProperty parseHead(const QByteArray &head)
{
    MvVCardProperty property;
    Search search;
    qsizetype start = 0;
    for (qsizetype number = 0; start <= head.size() && number <= mostParameters; ++number) {
        const qsizetype stop = search.find(head, ";");
        const qsizetype end = stop < 0 ? head.size() : stop;
        const QByteArray part = head.mid(start, end - start).trimmed();
        start = end + 1;
        if (number == 0) {
            const qsizetype dot = part.lastIndexOf('.');
            property.group = part.left(qMax<qsizetype>(dot, 0)).toUpper();
            property.name = part.mid(dot + 1).toUpper();
        } else {
            parseParameter(part, &property);
        }
    }
    return property;
}

QByteArray fromQuotedPrintable(const QByteArray &bytes)
{
    QByteArray result;
    result.reserve(bytes.size());
    for (qsizetype at = 0; at < bytes.size(); ++at) {
        if (bytes.at(at) == '=' && at + 2 < bytes.size()) {
            bool isHex = false;
            const int code = bytes.mid(at + 1, 2).toInt(&isHex, 16);
            if (isHex) {
                result.append(char(code));
                at += 2;
                continue;
            }
        }
        result.append(bytes.at(at));
    }
    return result;
}

} // namespace

MvVCardLines::MvVCardLines(QIODevice *device, const MvLineReader::GoOn &goOn)
    : m_lines(device, longestPicture, goOn)
{
    takeLine(); // the first one is ahead now
}

bool MvVCardLines::next(MvVCardProperty *property)
{
    while (m_hasAhead) {
        m_line = m_taken;
        const bool isCut = m_isAheadCut;
        QByteArray line = takeLine();
        Search search;
        qsizetype colon = search.find(line, ":");
        while (colon < 0 && isFolded()) { // within the head
            if (line.size() < longestText)
                line.append(takeFolded());
            else
                takeLine();
            colon = search.find(line, ":");
        }
        if (colon < 0)
            colon = line.indexOf(':'); // after a quotation mark that nobody closed
        if (colon <= 0) {
            if (!line.trimmed().isEmpty() && ++m_leftOutCount == 1)
                m_firstLeftOut = m_line;
            continue;
        }
        *property = parseHead(line.left(qMin(colon, longestText)));
        takeValue(property, line.mid(colon + 1), isCut);
        if (property->name == "BEGIN")
            takeBegin(property->value.trimmed().toUpper());
        else if (property->name == "VERSION")
            m_isOldForm = property->value.trimmed().startsWith(m_isCalendar ? '1' : '2');
        return true;
    }
    return false;
}

/// A card is of no old form until it says so; what is within a calendar is of the calendar's.
void MvVCardLines::takeBegin(const QByteArray &name)
{
    const bool isWithin = m_isCalendar && name != "VCARD" && name != "VCALENDAR";
    m_isOldForm = m_isOldForm && isWithin;
    m_isCalendar = isWithin || name == "VCALENDAR";
}

void MvVCardLines::takeValue(MvVCardProperty *property, const QByteArray &start, bool isStartCut)
{
    const bool isPicture = property->name == "PHOTO";
    const bool isQuotedPrintable = property->isQuotedPrintable();
    const bool isBase64 = property->isBase64();
    const qsizetype most = isPicture ? longestPicture : longestText;
    QByteArray &value = property->value;
    const auto append = [&](const QByteArray &more) {
        property->isCut = property->isCut || value.size() + more.size() > most;
        value.append(more.constData(), property->isCut && isPicture ? 0 : qMin(more.size(), most - value.size()));
    };
    append(start);
    property->isCut = property->isCut || isStartCut;
    while (m_hasAhead) {
        if (isQuotedPrintable && value.endsWith('=')) {
            value.chop(1);
            append(isFolded() ? takeFolded() : takeLine());
        } else if (isFolded()) {
            append(takeFolded());
        } else if (isBase64 && isMoreOfPicture()) {
            append(takeLine());
        } else {
            break;
        }
    }
    if (isPicture && property->isCut)
        value.clear();
    if (isQuotedPrintable)
        value = fromQuotedPrintable(value);
}

QByteArray MvVCardLines::takeLine()
{
    QByteArray line = std::exchange(m_ahead, {});
    m_hasAhead = m_lines.next(&m_ahead);
    ++m_taken;
    m_isAheadCut = m_lines.isCut();
    return line;
}

bool MvVCardLines::isFolded() const
{
    return m_ahead.startsWith(' ') || m_ahead.startsWith('\t');
}

/// Version 2.1 of cards and 1.0 of calendars fold at a blank, which stays; the later ones insert it.
QByteArray MvVCardLines::takeFolded()
{
    return m_isOldForm ? takeLine() : takeLine().mid(1);
}

/// Some programs do not indent the lines of a picture.
bool MvVCardLines::isMoreOfPicture() const
{
    return !m_ahead.contains(':') && !m_ahead.trimmed().isEmpty();
}

QList<MvVCardProperty> MvVCardLines::split(const QByteArray &bytes)
{
    QBuffer buffer;
    buffer.setData(bytes);
    buffer.open(QIODevice::ReadOnly);
    QList<MvVCardProperty> properties;
    MvVCardLines lines(&buffer);
    for (MvVCardProperty property; lines.next(&property);)
        properties.append(property);
    return properties;
}
