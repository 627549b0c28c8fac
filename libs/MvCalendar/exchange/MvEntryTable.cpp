// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvEntryTable.h"

#include "MvCalendar/MvFileText.h"
#include "MvCalendar/MvRepetitionWords.h"

#include "MvCore/MvTypedDate.h"

#include <QHash>
#include <QRegularExpression>
#include <QSet>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

using Table = MvEntryTable;
using LeapDayRule = MvEventRepetition::LeapDay;

const QUuid rowsNamespace(u"{2f1c9d54-90ab-4a3f-8a55-0d4a2b6f31c7}"_s);

Table::Column columnOf(const QString &heading)
{
    static const QHash<QString, Table::Column> known = {
        {u"name"_s, Table::Name},
        {u"titel"_s, Table::Name},
        {u"title"_s, Table::Name},
        {u"termin"_s, Table::Name},
        {u"betreff"_s, Table::Name},
        {u"subject"_s, Table::Name},
        {u"beschreibung"_s, Table::Name},
        {u"summary"_s, Table::Name},
        {u"anlass"_s, Table::Name},
        {u"ereignis"_s, Table::Name},
        {u"veranstaltung"_s, Table::Name},
        {u"description"_s, Table::Name},
        {u"datum"_s, Table::Date},
        {u"date"_s, Table::Date},
        {u"tag"_s, Table::Date},
        {u"beginnt am"_s, Table::Date},
        {u"start date"_s, Table::Date},
        {u"beginn"_s, Table::Date},
        {u"von"_s, Table::Date},
        {u"geburtstag"_s, Table::Date},
        {u"geburtsdatum"_s, Table::Date},
        {u"birthday"_s, Table::Date},
        {u"bis"_s, Table::EndDate},
        {u"ende"_s, Table::EndDate},
        {u"endet am"_s, Table::EndDate},
        {u"end date"_s, Table::EndDate},
        {u"endet um"_s, Table::EndTime},
        {u"end time"_s, Table::EndTime},
        {u"endzeit"_s, Table::EndTime},
        {u"ganztägiges ereignis"_s, Table::WholeDay},
        {u"ganztägig"_s, Table::WholeDay},
        {u"all day event"_s, Table::WholeDay},
        {u"all day"_s, Table::WholeDay},
        {u"uhrzeit"_s, Table::Time},
        {u"zeit"_s, Table::Time},
        {u"time"_s, Table::Time},
        {u"beginnt um"_s, Table::Time},
        {u"start time"_s, Table::Time},
        {u"wiederholung"_s, Table::Repetition},
        {u"recurrence"_s, Table::Repetition},
        {u"ausnahmen"_s, Table::Exceptions},
        {u"zusatztermine"_s, Table::ExtraDates},
        {u"29. februar"_s, Table::LeapDay},
        {u"gruppe"_s, Table::Groups},
        {u"gruppen"_s, Table::Groups},
        {u"kategorie"_s, Table::Groups},
        {u"kategorien"_s, Table::Groups},
        {u"categories"_s, Table::Groups},
        {u"category"_s, Table::Groups},
        {u"kennung"_s, Table::Uuid},
        {u"uid"_s, Table::Uuid},
    };
    return known.value(heading.simplified().toLower(), Table::Ignored);
}

/// "17. Mai 1941", "Mo, 17.5.41" and what else people write with letters.
QDate readWrittenDate(const QString &text)
{
    static const QRegularExpression letter(u"\\p{L}"_s);
    if (text.size() > 60 || !letter.match(text).hasMatch())
        return {};
    return MvTypedDate(text, QLocale(), QDate::currentDate(), MvCalendarEvent::unknownYear).date();
}

/// "17.05.1941", "17.5.41", "17.05.", "1941-05-17", "5/17/1941"; a time behind it does not count.
QDate readDate(const QString &text, Table::DateOrder order)
{
    static const QRegularExpression form(u"^(\\d{1,4})([./-])\\s?(\\d{1,2})(?:\\2\\s?(\\d{1,4})?)?(?:[T ,].*)?$"_s);
    const QRegularExpressionMatch match = form.match(text.trimmed());
    if (!match.hasMatch())
        return readWrittenDate(text);
    const int first = match.captured(1).toInt();
    const int second = match.captured(3).toInt();
    const QString yearText = match.captured(4);
    if (match.capturedLength(1) == 4)
        return QDate(first, second, yearText.toInt());
    if (match.capturedLength(1) > 2)
        return {};
    int year = yearText.isEmpty() ? MvCalendarEvent::unknownYear : yearText.toInt();
    if (yearText.size() <= 2 && !yearText.isEmpty())
        year += year > QDate::currentDate().year() % 100 + 20 ? 1900 : 2000;
    const bool isDayFirst = match.captured(2) == u"." || order == Table::DayMonthYear;
    return isDayFirst ? QDate(year, second, first) : QDate(year, first, second);
}

QTime readTime(const QString &text)
{
    static const QRegularExpression form(u"^(\\d{1,2})[:.](\\d{2})(?::\\d{2})?(?:\\s*Uhr|\\s*([ap])\\.?m\\.?)?$"_s,
                                         QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch match = form.match(text.trimmed());
    const QString half = match.captured(3).toLower();
    int hour = match.captured(1).toInt();
    if (!half.isEmpty())
        hour = hour % 12 + (half == u"p" ? 12 : 0);
    return match.hasMatch() ? QTime(hour, match.captured(2).toInt()) : QTime();
}

QStringList parts(const QString &cell)
{
    QStringList parts;
    static const QRegularExpression separators(u"[,;|]"_s);
    const QStringList pieces = cell.split(separators, Qt::SkipEmptyParts);
    for (const QString &piece : pieces)
        parts.append(piece.trimmed());
    return parts;
}

bool isYes(const QString &text)
{
    static const QSet<QString> words{u"true"_s, u"wahr"_s, u"ein"_s, u"on"_s, u"ja"_s, u"yes"_s, u"1"_s, u"x"_s};
    return words.contains(text.toLower());
}

class RowReader
{
public:
    RowReader(const Table::Format &format, MvEventGroupList &groups)
        : m_format(format)
        , m_groups(groups)
    {}

    /// Invalid, with a reason, for a row that is no entry.
    MvCalendarEvent read(const Table::Row &row, QString *reason)
    {
        m_row = &row;
        const QString name = cell(Table::Name);
        const QString dateText = cell(Table::Date);
        const QDate date = readDate(dateText, m_format.order);
        if (name.isEmpty())
            *reason = MvEntryTable::tr("der Name fehlt");
        else if (dateText.isEmpty())
            *reason = MvEntryTable::tr("das Datum fehlt");
        else if (!date.isValid())
            *reason = unreadable(MvEntryTable::tr("das Datum"), dateText);
        if (!reason->isEmpty())
            return {};
        QUuid uuid = QUuid::fromString(cell(Table::Uuid));
        if (uuid.isNull())
            uuid = QUuid::createUuidV5(rowsNamespace, name + u'/' + date.toString(Qt::ISODate));
        MvCalendarEvent event(name, MvCalendarEvent::startOf(date),
                              m_format.isYearly || date.year() == MvCalendarEvent::unknownYear, {}, uuid, {});
        takeTimes(event, reason);
        takeRepetition(event, reason);
        QStringList groups;
        for (const QString &group : parts(cell(Table::Groups)))
            groups.append(m_groups.idOfName(group));
        event.setGroups(groups);
        return event;
    }

private:
    QString cell(Table::Column column) const
    {
        const qsizetype index = m_format.columns.indexOf(column);
        return m_row->cells.value(index < 0 ? m_row->cells.size() : index).simplified();
    }

    static QString unreadable(const QString &what, const QString &text)
    {
        return MvEntryTable::tr("%1 „%2“ ist nicht zu lesen").arg(what, text.left(40));
    }

    QList<QDate> dates(Table::Column column, QString *reason) const
    {
        QList<QDate> dates;
        for (const QString &part : parts(cell(column))) {
            dates.append(readDate(part, m_format.order));
            if (!dates.last().isValid())
                *reason = unreadable(MvEntryTable::tr("das Datum"), part);
        }
        return dates;
    }

    void takeTimes(MvCalendarEvent &event, QString *reason) const
    {
        if (const QString text = cell(Table::EndDate); !text.isEmpty()) {
            QDate end = readDate(text, m_format.order);
            if (!end.isValid())
                *reason = unreadable(MvEntryTable::tr("das Ende"), text);
            else if (event.dateTime().date().daysTo(end) >= MvCalendarEvent::longestSpan)
                *reason = MvEntryTable::tr("er dauert länger als ein Jahr");
            if (readTime(cell(Table::EndTime)) == QTime(0, 0)) // the midnight with which the last day ends
                end = end.addDays(-1);
            event.setEndDate(end);
        }
        if (const QString text = cell(Table::Time); !text.isEmpty() && !isYes(cell(Table::WholeDay))) {
            event.setTime(readTime(text));
            if (!event.time().isValid())
                *reason = unreadable(MvEntryTable::tr("die Uhrzeit"), text);
        }
    }

    void takeRepetition(MvCalendarEvent &event, QString *reason) const
    {
        MvEventRepetition repetition;
        if (const QString text = cell(Table::Repetition); !text.isEmpty()) {
            const MvRepetitionWords words(text);
            if (!words.isOk())
                *reason = unreadable(MvEntryTable::tr("die Wiederholung"), text);
            repetition.rule = words.rule();
            event.setRecurrent(words.isYearly());
        }
        repetition.exceptions = dates(Table::Exceptions, reason);
        repetition.extraDates = dates(Table::ExtraDates, reason);
        const QString leapDay = cell(Table::LeapDay);
        if (leapDay.startsWith(u"28"))
            repetition.leapDay = LeapDayRule::February28;
        else if (leapDay.startsWith(u'1'))
            repetition.leapDay = LeapDayRule::March1;
        event.setRepetition(repetition);
    }

    const Table::Format &m_format;
    MvEventGroupList &m_groups;
    const Table::Row *m_row = nullptr;
};

/// What a spreadsheet says of the separator in a line of its own; null when it does not.
QChar saidSeparator(const QString &text)
{
    static const QRegularExpression form(u"^\"?sep=(.)\"?(?:\\n|$)"_s, QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch match = form.match(text.left(16));
    return match.hasMatch() ? match.captured(1).front() : QChar();
}

/// By the first line, without what stands in quotation marks: commas are in texts, too.
QChar separatorOf(const QString &text)
{
    if (const QChar said = saidSeparator(text); !said.isNull())
        return said;
    static const QRegularExpression quotation(u"\"[^\"]*\""_s);
    const QString line = text.section(u'\n', 0, 0).remove(quotation);
    if (line.contains(u'\t'))
        return u'\t';
    return line.contains(u';') || !line.contains(u',') ? u';' : u',';
}

/// The headings of columns that say something, but nothing for an entry.
QString ignoredColumns(const Table::Format &format, const QList<Table::Row> &rows)
{
    QStringList ignored;
    for (qsizetype i = 0; format.hasHeadings && rows.size() > 1 && i < format.columns.size(); ++i) {
        const auto isFull = [i](const Table::Row &row) { return !row.cells.value(i).isEmpty(); };
        const bool isSecond = format.columns.indexOf(format.columns.at(i)) < i;
        if ((format.columns.at(i) == Table::Ignored || isSecond) && std::any_of(rows.cbegin() + 1, rows.cend(), isFull))
            ignored.append(rows.first().cells.value(i).left(40));
    }
    ignored.removeAll(QString());
    return ignored.join(u", "_s);
}

/// Without characters that no file of texts has: one of them, and it would be taken for something else.
QString quoted(QString text, QChar separator)
{
    text.removeIf([](QChar c) { return c.unicode() < 0x20 && c != u'\n' && c != u'\t'; });
    const bool isPlain = !text.contains(separator) && !text.contains(u'"') && !text.contains(u'\n');
    return isPlain ? text : u'"' + text.replace(u'"', u"\"\""_s) + u'"';
}

QString datesText(const QList<QDate> &dates)
{
    QStringList texts;
    for (const QDate &date : dates)
        texts.append(MvCalendarEvent::dateText(date));
    return texts.join(u", "_s);
}

} // namespace

QList<MvEntryTable::Row> MvEntryTable::rows(const QByteArray &bytes, const Format &format, qsizetype most)
{
    const QString text = MvFileText::decoded(bytes, format.encoding);
    const bool saysSeparator = !saidSeparator(text).isNull();
    QList<Row> rows;
    Row row{1, {}};
    QString cell;
    bool isQuoted = false;
    int line = 1;
    const auto endCell = [&] { row.cells.append(std::exchange(cell, {}).trimmed()); };
    const auto endRow = [&] {
        endCell();
        const bool isEmpty =
            std::all_of(row.cells.cbegin(), row.cells.cend(), [](const QString &c) { return c.isEmpty(); });
        if (!isEmpty && !(saysSeparator && row.line == 1))
            rows.append(row);
        row = {line, {}};
    };
    for (qsizetype i = 0; i < text.size() && rows.size() < most; ++i) {
        const QChar c = text.at(i);
        if (c == u'\n')
            ++line;
        if (isQuoted && c == u'"') {
            isQuoted = i + 1 < text.size() && text.at(i + 1) == u'"';
            if (isQuoted)
                cell += text.at(++i);
        } else if (!isQuoted && c == u'"' && cell.trimmed().isEmpty()) {
            const qsizetype end = text.indexOf(u'"', i + 1);
            isQuoted = end > 0 && end - i < 10000; // else nobody closes it
        } else if (!isQuoted && c == format.separator) {
            endCell();
        } else if (!isQuoted && c == u'\n') {
            endRow();
        } else {
            cell += c;
        }
    }
    if (rows.size() < most)
        endRow();
    return rows;
}

MvEntryTable::Format MvEntryTable::guess(const QByteArray &bytes)
{
    Format format;
    format.encoding = MvFileText::encodingOf(bytes);
    format.separator = separatorOf(MvFileText::decoded(bytes.left(8192), format.encoding));
    constexpr qsizetype enough = 500; // rows
    const QList<Row> all = rows(bytes, format, enough);
    if (all.isEmpty())
        return format;
    for (const QString &heading : all.first().cells)
        format.columns.append(columnOf(heading));
    format.hasHeadings = format.columns.contains(Name) || format.columns.contains(Date);
    const QList<Row> body = all.mid(format.hasHeadings ? 1 : 0);
    // a column that says nothing of itself: the first of dates, the first of other texts
    for (const Column wanted : {Date, Name}) {
        for (qsizetype i = 0; i < format.columns.size() && !format.columns.contains(wanted); ++i) {
            const auto isDate = [i](const Row &row) {
                return readDate(row.cells.value(i), DayMonthYear).isValid() ||
                       readDate(row.cells.value(i), MonthDayYear).isValid();
            };
            const auto dates = std::count_if(body.cbegin(), body.cend(), isDate);
            if (format.columns.at(i) == Ignored && (wanted == Date ? dates * 2 > body.size() : dates == 0))
                format.columns[i] = wanted;
        }
    }
    const qsizetype dateColumn = format.columns.indexOf(Date);
    QSet<int> years;
    bool isDayFirst = false;
    bool isMonthFirst = false;
    bool isOpen = false;
    for (const Row &row : std::as_const(body)) {
        const QString text = dateColumn < 0 ? QString() : row.cells.value(dateColumn);
        const QDate one = readDate(text, DayMonthYear);
        const QDate other = readDate(text, MonthDayYear);
        isDayFirst = isDayFirst || (one.isValid() && !other.isValid());
        isMonthFirst = isMonthFirst || (other.isValid() && !one.isValid());
        isOpen = isOpen || (one.isValid() && other.isValid() && one != other);
        years.insert(one.isValid() ? one.year() : other.year());
    }
    format.order = isMonthFirst && !isDayFirst ? MonthDayYear : DayMonthYear;
    format.isOrderOpen = isOpen && isDayFirst == isMonthFirst;
    constexpr qsizetype manyYears = 4; // birthdays are of many years, dates of a club of one or two
    static const QSet<QString> birthdays{u"geburtstag"_s, u"geburtsdatum"_s, u"birthday"_s};
    const bool isBirthday =
        format.hasHeadings && birthdays.contains(all.first().cells.value(dateColumn).simplified().toLower());
    format.isYearly = isBirthday || years.size() >= manyYears;
    return format;
}

MvEntryReading MvEntryTable::read(const QByteArray &bytes, const Format &format)
{
    MvEntryReading reading;
    if (!format.columns.contains(Name) || !format.columns.contains(Date)) {
        reading.error =
            MvEntryTable::tr("Die Tabelle hat keine Spalte, in der Namen stehen, und eine mit Daten wie „17.05.2027“.");
        return reading;
    }
    const QList<Row> all = rows(bytes, format);
    RowReader reader(format, reading.events.groups());
    for (const Row &row : all.mid(format.hasHeadings ? 1 : 0)) {
        QString reason;
        const MvCalendarEvent event = reader.read(row, &reason);
        if (reason.isEmpty())
            reading.events.append(event);
        else
            reading.skipped.append({row.line, row.cells.value(format.columns.indexOf(Name)).left(60), reason});
    }
    if (const QString ignored = ignoredColumns(format, all); !ignored.isEmpty())
        reading.notes.append(MvEntryTable::tr("Ein Kalender druckt nicht: %1").arg(ignored));
    if (all.size() >= mostRows)
        reading.skipped.append(
            {all.last().line, {}, MvEntryTable::tr("die Tabelle hat mehr als %1 Zeilen").arg(mostRows)});
    return reading;
}

QByteArray MvEntryTable::toBytes(const MvCalendarEventList &events, QChar separator)
{
    QString text(QChar(0xFEFF));
    const auto add = [&](const QStringList &cells) {
        QStringList quotedCells;
        for (const QString &cell : cells)
            quotedCells.append(quoted(cell, separator));
        text += quotedCells.join(separator) + u"\r\n"_s;
    };
    add({u"Datum"_s, u"Name"_s, u"Bis"_s, u"Uhrzeit"_s, u"Wiederholung"_s, u"Ausnahmen"_s, u"Zusatztermine"_s,
         u"29. Februar"_s, u"Gruppen"_s, u"Kennung"_s});
    for (const MvCalendarEvent &event : events) {
        if (!event.isValid())
            continue;
        const MvEventRepetition &repetition = event.repetition();
        QStringList groups;
        for (const QString &id : event.groups()) {
            if (const MvEventGroup *group = events.groups().find(id))
                groups.append(group->name);
        }
        const QString rule = repetition.rule.text();
        const QStringList leapDays = {QString(), u"28.02."_s, u"1.03."_s};
        add({MvCalendarEvent::dateText(event.dateTime().date()), event.description(),
             event.endDate().isValid() ? MvCalendarEvent::dateText(event.endDate()) : QString(),
             event.time().toString(u"HH:mm"_s),
             !rule.isEmpty()           ? rule
             : event.storedRecurrent() ? u"jährlich"_s
                                       : u"einmal"_s,
             datesText(repetition.exceptions), datesText(repetition.extraDates), leapDays.at(int(repetition.leapDay)),
             groups.join(u", "_s), event.uuid().toString()});
    }
    return text.toUtf8();
}
