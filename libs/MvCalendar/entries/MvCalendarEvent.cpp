// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCalendarEvent.h"

#include "MvCalendar/MvCalendarEventContent.h"
#include "MvCalendar/MvCalendarEventExtras.h"
#include "MvCalendar/MvCalendarEventFotoCopy.h"
#include "MvCalendar/MvCalendarEventFotoFinder.h"
#include "MvCalendar/MvCalendarEventTexts.h"
#include "MvCalendar/MvRecurrenceDates.h"
#include "MvCore/MvDirectoryConfig.h"
#include "MvCore/MvStringHelper.h"
#include "MvFoto/MvFotoAccess.h"
#include "MvXML/MvXMLBuilder.h"
#include "MvXML/MvXMLParser.h"

#include <QLocale>
#include <QRegularExpression>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// A date and time in ISO form. Where the local time zone skipped the time, the date counts: nobody loses a birthday
/// because clocks were put forward that night.
QDateTime readDateTime(const QString &text)
{
    const QDateTime value = QDateTime::fromString(text, Qt::ISODate);
    if (value.isValid())
        return value;
    const QDate date = QDate::fromString(text.left(10), Qt::ISODate);
    return QTime::fromString(text.mid(11), Qt::ISODate).isValid() ? MvCalendarEvent::startOf(date) : QDateTime();
}

QString shortDate(const QDateTime &dateTime)
{
    const QDate date = dateTime.date();
    QString format = QLocale().dateFormat(QLocale::ShortFormat);
    if (date.year() == MvCalendarEvent::unknownYear) // with what separates it: "dd.MM.", "dd/MM", "M/d", "MM-dd"
        format.remove(QRegularExpression(u"^y+\\W+|(?:[^\\w.]+)?y+$"_s));
    return QLocale().toString(date, format);
}

} // namespace

MvCalendarEvent::MvCalendarEvent() = default;
MvCalendarEvent::~MvCalendarEvent() = default;
MvCalendarEvent::MvCalendarEvent(const MvCalendarEvent &) = default;
MvCalendarEvent::MvCalendarEvent(MvCalendarEvent &&) noexcept = default;
MvCalendarEvent &MvCalendarEvent::operator=(const MvCalendarEvent &) = default;
MvCalendarEvent &MvCalendarEvent::operator=(MvCalendarEvent &&) noexcept = default;

MvCalendarEvent::MvCalendarEvent(const QString &name, const QDateTime &dateTime, bool recurrent, const MvFoto &foto,
                                 const QUuid &uuid, const QDateTime &lastChanged)
    : m_name(name)
    , m_dateTime(dateTime)
    , m_recurrent(recurrent)
    , m_uuid(uuid)
    , m_lastChanged(lastChanged)
{
    setFoto(foto);
}

MvCalendarEvent::MvCalendarEvent(const QDomElement &element)
{
    read(MvCalendarEventTexts(element));
    m_foto = createFoto(element);
}

MvCalendarEvent::MvCalendarEvent(const MvCalendarEventTexts &texts, MvCalendarEventFotoFinder &fotos)
{
    read(texts);
    m_foto = fotos.find(texts.text(u"Image"_s));
}

void MvCalendarEvent::read(const MvCalendarEventTexts &texts)
{
    m_name = texts.text(u"Name"_s);
    m_dateTime = readDateTime(texts.text(u"DateTime"_s).trimmed());
    m_recurrent = MvStringHelper::stringToBool(texts.text(u"Recurrent"_s), true);
    m_uuid = texts.contains(u"UUID"_s) ? QUuid::fromString(texts.text(u"UUID"_s).trimmed()) : QUuid::createUuid();
    m_lastChanged = QDateTime::fromString(texts.text(u"LastChanged"_s).trimmed(), Qt::ISODate);
    if (!m_lastChanged.isValid())
        m_lastChanged = QDateTime::currentDateTime();
    if (texts.hasExtras())
        setExtras(MvCalendarEventExtras(texts));
}

const MvCalendarEventExtras &MvCalendarEvent::extras() const
{
    static const MvCalendarEventExtras none;
    return m_extras ? *m_extras : none;
}

void MvCalendarEvent::setExtras(const MvCalendarEventExtras &extras)
{
    m_extras = extras == MvCalendarEventExtras() ? nullptr : std::make_shared<const MvCalendarEventExtras>(extras);
}

bool MvCalendarEvent::hasSameExtras(const MvCalendarEvent &other) const
{
    return m_extras == other.m_extras || extras() == other.extras();
}

QString MvCalendarEvent::whyUnreadable(const MvCalendarEventTexts &texts)
{
    return texts.hasExtras() ? MvCalendarEventExtras::whyUnreadable(texts) : QString();
}

const MvEventRepetition &MvCalendarEvent::repetition() const
{
    return extras().repetition;
}

QDate MvCalendarEvent::endDate() const
{
    return extras().endDate;
}

QTime MvCalendarEvent::time() const
{
    return extras().time;
}

QStringList MvCalendarEvent::groups() const
{
    return extras().groups;
}

QSize MvCalendarEvent::imageSize() const
{
    return m_foto.isValid() ? MvFotoAccess::preferredSize(m_foto) : QSize();
}

MvDrawable MvCalendarEvent::image() const
{
    return MvDrawable(MvFotoAccess::fullRes(m_foto));
}

void MvCalendarEvent::setEventName(const QString &name)
{
    m_name = name;
    updateChangeTime();
}

void MvCalendarEvent::setDateTime(const QDateTime &dateTime)
{
    m_dateTime = dateTime;
    updateChangeTime();
}

void MvCalendarEvent::setRecurrent(bool recurrent)
{
    m_recurrent = recurrent;
    updateChangeTime();
}

void MvCalendarEvent::setRepetition(const MvEventRepetition &repetition)
{
    MvCalendarEventExtras changed = extras();
    changed.repetition = repetition;
    changed.repetition.normalize();
    setExtras(changed);
    updateChangeTime();
}

void MvCalendarEvent::setEndDate(const QDate &date)
{
    MvCalendarEventExtras changed = extras();
    changed.endDate = date > m_dateTime.date() ? date : QDate();
    setExtras(changed);
    updateChangeTime();
}

void MvCalendarEvent::setTime(const QTime &time)
{
    MvCalendarEventExtras changed = extras();
    changed.time = QTime(time.hour(), time.minute()); // files have no seconds
    setExtras(changed);
    updateChangeTime();
}

void MvCalendarEvent::setGroups(const QStringList &ids)
{
    MvCalendarEventExtras changed = extras();
    changed.groups = ids;
    changed.groups.removeAll(QString());
    changed.groups.removeDuplicates();
    setExtras(changed);
    updateChangeTime();
}

void MvCalendarEvent::takeContent(const MvCalendarEvent &other, int part)
{
    MvCalendarEventExtras changed = extras();
    const MvCalendarEventExtras &given = other.extras();
    if (part & MvCalendarEventContent::Name)
        m_name = other.m_name;
    if (part & MvCalendarEventContent::Date) {
        m_dateTime = other.m_dateTime;
        changed.endDate = given.endDate;
        changed.time = given.time;
    }
    if (part & MvCalendarEventContent::Repetition) {
        m_recurrent = other.m_recurrent;
        changed.repetition = given.repetition;
    }
    if (part & MvCalendarEventContent::Groups)
        changed.groups = given.groups;
    setExtras(changed);
    updateChangeTime();
}

void MvCalendarEvent::setFoto(const MvFoto &foto)
{
    const bool isKeptAsItIs =
        !foto.mayBeOpened() || (foto.isLocalFile() && isInAppSafeArea(foto.localFileInfo())); // also no photo at all
    m_foto = isKeptAsItIs ? foto : MvFoto(saveImageToNewPosition(loadFotoAsThumbnail(foto), foto));
    updateChangeTime();
}

MvOutcome MvCalendarEvent::takeFoto(const MvFoto &foto)
{
    if (foto == m_foto) { // wherever it lies
        updateChangeTime();
        return {};
    }
    if (!foto.isValid()) {
        setFoto(foto);
        return {};
    }
    const MvCalendarEventFotoCopy::Copy copy = MvCalendarEventFotoCopy::of(foto);
    if (!copy.isOk())
        return copy;
    m_foto = copy.foto;
    updateChangeTime();
    return {};
}

void MvCalendarEvent::updateChangeTime()
{
    m_lastChanged = QDateTime::currentDateTime();
}

bool MvCalendarEvent::isAtDay(const QDate &day) const
{
    if (!isByDayOfYear())
        return startAt(day).isValid();
    const QDate date = m_dateTime.date();
    if (date.day() != day.day() || date.month() != day.month())
        return false;
    return date.year() == day.year() || m_recurrent;
}

// ---- occurrences

int MvCalendarEvent::dayCount() const
{
    const QDate end = m_extras ? m_extras->endDate : QDate();
    const qint64 days = end.isValid() ? m_dateTime.date().daysTo(end) + 1 : 1;
    return int(std::clamp<qint64>(days, 1, longestSpan));
}

bool MvCalendarEvent::isByDayOfYear() const
{
    return !m_extras || (m_extras->repetition.isDefault() && dayCount() == 1);
}

QList<QDate> MvCalendarEvent::startsInYear(int year) const
{
    const QDate date = m_dateTime.date();
    const MvEventRepetition &how = repetition();
    QList<QDate> starts;
    if (how.rule.isPlain() && how.rule.frequency == MvRecurrenceRule::Yearly && how.rule.count == 0) {
        const bool isInStep = year >= date.year() && (year - date.year()) % how.rule.interval == 0;
        const QDate day = isInStep ? how.yearlyDay(date, year) : QDate();
        if (day.isValid() && (!how.rule.until.isValid() || day <= how.rule.until))
            starts.append(day);
    } else if (!how.rule.isNone()) {
        starts = MvRecurrenceDates::inYear(how.rule, date, year);
    } else if (m_recurrent || year == date.year()) {
        if (const QDate day = how.yearlyDay(date, year); day.isValid())
            starts.append(day);
    }
    starts.removeIf([&how](const QDate &day) { return how.exceptions.contains(day); });
    for (const QDate &extra : how.extraDates) {
        if (extra.year() == year && !how.exceptions.contains(extra) && !starts.contains(extra))
            starts.append(extra);
    }
    std::sort(starts.begin(), starts.end());
    return starts;
}

QDate MvCalendarEvent::startAt(const QDate &day) const
{
    if (!day.isValid() || !m_dateTime.isValid())
        return {};
    const QDate earliest = day.addDays(1 - dayCount());
    for (int year = day.year(); year >= earliest.year(); --year) {
        const QList<QDate> starts = startsInYear(year);
        const auto after = std::upper_bound(starts.cbegin(), starts.cend(), day);
        if (after != starts.cbegin())
            return *std::prev(after) >= earliest ? *std::prev(after) : QDate();
    }
    return {};
}

int MvCalendarEvent::yearsAt(const QDate &start) const
{
    const MvRecurrenceRule &rule = repetition().rule;
    const bool isYearly = rule.isNone() ? m_recurrent : rule.frequency == MvRecurrenceRule::Yearly;
    const int year = m_dateTime.date().year();
    // an entry typed in at a day of a page has the year of the page, which says nothing of what it is about
    const bool isTypedIn = m_lastChanged.isValid() && year >= m_lastChanged.date().year();
    return hasYear() && isYearly && !isTypedIn ? std::max(0, start.year() - year) : 0;
}

QDateTime MvCalendarEvent::startOf(const QDate &date)
{
    const QDateTime start = date.startOfDay();
    return start.isValid() || !date.isValid() ? start : date.startOfDay(Qt::UTC);
}

QString MvCalendarEvent::dateText(const QDate &date)
{
    return date.toString(date.year() == unknownYear ? u"dd.MM."_s : u"dd.MM.yyyy"_s);
}

QString MvCalendarEvent::longDescription() const
{
    return u"%1: \"%2\""_s.arg(shortDate(m_dateTime), m_name);
}

QString MvCalendarEvent::debugString() const
{
    return u"%1: \"%2\" %3 %4"_s.arg(shortDate(m_dateTime), m_name, QString::number(int(isRecurrent())),
                                     m_uuid.toString());
}

QList<std::pair<QString, QString>> MvCalendarEvent::fileTexts() const
{
    if (!isValid())
        return {};
    QList<std::pair<QString, QString>> texts = {
        {u"Name"_s, m_name},
        {u"DateTime"_s, m_dateTime.toString(Qt::ISODate)},
        {u"Recurrent"_s, MvStringHelper::boolToString(m_recurrent)},
        {u"Image"_s, m_foto.localFilePath()},
        {u"UUID"_s, m_uuid.toString()},
        {u"LastChanged"_s, m_lastChanged.toString(Qt::ISODate)},
    };
    return m_extras ? texts + m_extras->fileTexts() : texts;
}

void MvCalendarEvent::createXML(QDomNode &parent) const
{
    QDomElement element = MvXMLBuilder::buildDomElement(parent, u"CalendarEvent"_s);
    for (const auto &[name, text] : fileTexts())
        MvXMLBuilder::buildDomElement(element, name, text);
}

QDir MvCalendarEvent::imageDirectory()
{
    return MvDirectoryConfig::instance().programDataSubDir(imageDirectoryName.toString());
}

bool MvCalendarEvent::isInAppSafeArea(const QFileInfo &file) const
{
    return MvCalendarEventFotoCopy::isInFolder(file);
}

QImage MvCalendarEvent::loadFotoAsThumbnail(const MvFoto &foto) const
{
    const QImage image = MvFotoAccess::midRes(foto, fotoQuality, fotoCaching);
    if (image.isNull())
        qWarning().nospace() << "Unable to open image : " << foto;
    return image;
}

QFileInfo MvCalendarEvent::saveImageToNewPosition(const QImage &image, const MvFoto &foto) const
{
    const MvCalendarEventFotoCopy::Saved saved = MvCalendarEventFotoCopy::save(image, foto);
    if (!saved.isOk())
        qWarning().noquote().nospace() << "Unable to save image to : " << saved.file.absoluteFilePath();
    return saved.file;
}

MvFoto MvCalendarEvent::createFoto(const QDomElement &element) const
{
    return MvCalendarEventFotoFinder().find(MvXMLParser::text(element, u"Image"_s));
}

bool MvCalendarEvent::lessThanDate(const MvCalendarEvent &a, const MvCalendarEvent &b)
{
    if (a.m_dateTime == b.m_dateTime)
        return a < b;
    const QDate first = a.m_dateTime.date();
    const QDate second = b.m_dateTime.date();
    return first.month() == second.month() ? first.day() < second.day() : first.month() < second.month();
}

bool MvCalendarEvent::greaterThanDate(const MvCalendarEvent &a, const MvCalendarEvent &b)
{
    return lessThanDate(b, a);
}

bool MvCalendarEvent::lessThanName(const MvCalendarEvent &a, const MvCalendarEvent &b)
{
    return a.m_name == b.m_name ? a < b : a.m_name < b.m_name;
}

bool MvCalendarEvent::greaterThanName(const MvCalendarEvent &a, const MvCalendarEvent &b)
{
    return lessThanName(b, a);
}

bool MvCalendarEvent::lessThanRecurrent(const MvCalendarEvent &a, const MvCalendarEvent &b)
{
    return a.isRecurrent() == b.isRecurrent() ? a < b : !a.isRecurrent();
}

bool MvCalendarEvent::greaterThanRecurrent(const MvCalendarEvent &a, const MvCalendarEvent &b)
{
    return lessThanRecurrent(b, a);
}

bool MvCalendarEvent::operator==(const MvCalendarEvent &other) const
{
    return m_recurrent == other.m_recurrent && m_name == other.m_name && m_dateTime == other.m_dateTime &&
           m_foto == other.m_foto && hasSameExtras(other);
}

bool MvCalendarEvent::operator<(const MvCalendarEvent &other) const
{
    if (isValid() != other.isValid())
        return isValid();
    if (m_recurrent != other.m_recurrent)
        return !m_recurrent;
    if (m_name != other.m_name)
        return m_name < other.m_name;
    if (m_dateTime != other.m_dateTime)
        return m_dateTime < other.m_dateTime;
    return false; // entries that differ in their photos alone are equivalent
}

QDebug operator<<(QDebug debug, const MvCalendarEvent &event)
{
    const QDebugStateSaver saver(debug);
    debug.noquote().nospace() << event.debugString();
    return debug;
}

size_t qHash(const MvCalendarEvent &event, size_t seed)
{
    // equal times have equal local fields; those are at hand, whereas the moment itself asks for the time zone's rules
    const QDateTime &dateTime = event.dateTime();
    const QDateTime local = dateTime.timeSpec() == Qt::LocalTime ? dateTime : dateTime.toLocalTime();
    const size_t hash =
        qHashMulti(seed, event.description(), local.date(), local.time(), event.storedRecurrent(), event.foto());
    return event.endDate().isValid() ? qHashMulti(hash, event.endDate()) : hash;
}
