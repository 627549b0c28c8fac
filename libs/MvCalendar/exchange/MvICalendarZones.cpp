// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvICalendarZones.h"

#include "MvCalendar/MvICalendar.h"
#include "MvCalendar/MvRecurrenceDates.h"

#include <QRegularExpression>
#include <QTimeZone>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype mostZones = 200;
constexpr qsizetype mostParts = 100; // of a zone: a hundred years of decrees

QDateTime momentOf(const QString &text)
{
    const QString form = text.trimmed();
    return QDateTime(QDate::fromString(form.left(8), u"yyyyMMdd"_s), QTime::fromString(form.mid(9, 6), u"HHmmss"_s),
                     Qt::UTC);
}

/// "+0130", "-013015"
int offsetOf(const QString &text)
{
    static const QRegularExpression form(u"^([+-])(\\d{2})(\\d{2})(\\d{2})?$"_s);
    const QRegularExpressionMatch match = form.match(text.trimmed());
    const int seconds = match.captured(2).toInt() * 3600 + match.captured(3).toInt() * 60 + match.captured(4).toInt();
    return match.captured(1) == u"-" ? -seconds : seconds;
}

/// By the names that systems give: of a place, of one within a longer path, of another system. Any word without a
/// slash would do as a rule of its own for the system's library.
QTimeZone systemZone(const QString &name)
{
    static const QSet<QString> words{u"UTC"_s, u"GMT"_s, u"CET"_s, u"MET"_s, u"EET"_s, u"WET"_s};
    const QTimeZone zone = words.contains(name) || name.contains(u'/') ? QTimeZone(name.toLatin1()) : QTimeZone();
    if (zone.isValid())
        return zone;
    const qsizetype city = name.lastIndexOf(u'/');
    const qsizetype area = city < 0 ? -1 : name.lastIndexOf(u'/', city - 1);
    if (area >= 0)
        return QTimeZone(name.mid(area + 1).toLatin1());
    const QByteArray other = QTimeZone::windowsIdToDefaultIanaId(name.toLatin1());
    return other.isEmpty() ? QTimeZone() : QTimeZone(other);
}

} // namespace

QString MvICalendarZones::zoneOf(const MvVCardProperty &property)
{
    return QString::fromUtf8(property.parameters.value("TZID"));
}

void MvICalendarZones::begin()
{
    m_open.clear();
    m_openParts.clear();
    m_isInPart = false;
}

void MvICalendarZones::beginPart()
{
    m_isInPart = m_openParts.size() < mostParts;
    if (m_isInPart)
        m_openParts.append(Part());
}

void MvICalendarZones::take(const MvVCardProperty &property)
{
    if (property.name == "TZID")
        m_open = property.text().trimmed();
    else if (m_isInPart)
        takeOfPart(m_openParts.last(), property);
    if (!m_open.isEmpty() && (m_zones.contains(m_open) || m_zones.size() < mostZones))
        m_zones.insert(m_open, m_openParts);
}

void MvICalendarZones::takeOfPart(Part &part, const MvVCardProperty &property)
{
    const QString text = property.text();
    if (property.name == "DTSTART")
        part.start = momentOf(text);
    else if (property.name == "TZOFFSETTO")
        part.offset = offsetOf(text);
    else if (property.name == "TZOFFSETFROM")
        part.offsetBefore = offsetOf(text);
    else if (property.name == "RRULE")
        part.rule = MvRecurrenceRule::parse(text).rule;
    else if (property.name == "RDATE")
        part.more.append(momentOf(text));
}

QDateTime MvICalendarZones::latestStart(const Part &part, const QDateTime &time)
{
    QList<QDateTime> starts = part.more;
    starts.append(part.start);
    const int year = time.date().year();
    const int last = part.rule.until.isValid() ? std::min(year, part.rule.until.year()) : year;
    for (int each = last - 1; each <= last && part.start.isValid(); ++each) {
        const QList<QDate> dates = MvRecurrenceDates::inYear(part.rule, part.start.date(), each);
        for (const QDate &date : dates)
            starts.append(QDateTime(date, part.start.time(), Qt::UTC));
    }
    QDateTime latest;
    for (const QDateTime &start : std::as_const(starts)) {
        if (start.isValid() && start <= time && (!latest.isValid() || start > latest))
            latest = start;
    }
    return latest;
}

int MvICalendarZones::offsetAt(const QList<Part> &parts, const QDateTime &time)
{
    int offset = parts.first().offsetBefore;
    QDateTime latest;
    for (const Part &part : parts) {
        const QDateTime start = latestStart(part, time);
        if (start.isValid() && (!latest.isValid() || start > latest)) {
            latest = start;
            offset = part.offset;
        }
    }
    return offset;
}

QDateTime MvICalendarZones::toLocal(const QDate &date, const QTime &time, const QString &zone)
{
    if (const QTimeZone known = systemZone(zone); known.isValid())
        return QDateTime(date, time, known).toLocalTime();
    const QList<Part> parts = m_zones.value(zone);
    if (!parts.isEmpty())
        return QDateTime(date, time, Qt::OffsetFromUTC, offsetAt(parts, QDateTime(date, time, Qt::UTC))).toLocalTime();
    m_unknown.insert(zone);
    return QDateTime(date, time);
}

MvICalendarZones::Time MvICalendarZones::read(const QString &text, const QString &zone)
{
    const QString form = text.trimmed();
    Time when;
    when.date = QDate::fromString(form.left(8), u"yyyyMMdd"_s);
    if (form.size() == 8 && when.date.isValid())
        return when;
    const QString time = form.mid(8);
    when.time = QTime::fromString(time.mid(1, 6), u"HHmmss"_s);
    const bool isUtc = time.endsWith(u'Z');
    if (!when.date.isValid() || !time.startsWith(u'T') || !when.time.isValid() || time.size() != (isUtc ? 8 : 7)) {
        when.error = MvICalendar::tr("das Datum „%1“ ist nicht zu lesen").arg(form.left(40));
        return when;
    }
    if (isUtc || !zone.isEmpty()) {
        const QDateTime local =
            isUtc ? QDateTime(when.date, when.time, Qt::UTC).toLocalTime() : toLocal(when.date, when.time, zone);
        when.date = local.date();
        when.time = local.time();
    }
    return when;
}
