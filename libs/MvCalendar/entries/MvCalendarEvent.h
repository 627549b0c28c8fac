// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/mvcalendar_export.h"

#include "MvCalendar/MvEventRepetition.h"
#include "MvCore/MvOutcome.h"
#include "MvCore/MvTypedDate.h"
#include "MvFoto/MvDrawable.h"
#include "MvFoto/MvFoto.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDebug>
#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QList>
#include <QMetaType>
#include <QString>
#include <QStringList>
#include <QTime>
#include <QUuid>

#include <memory>
#include <utility>

class MvCalendarEventFotoFinder;
class MvCalendarEventTexts;
struct MvCalendarEventExtras;
class QDomElement;
class QDomNode;

/// One personal entry of a calendar: a birthday, an anniversary or another dated text, with a photo if wanted.
///
/// A photo that is set is copied into the program's own photo folder in medium resolution, so that an entry does not
/// depend on files elsewhere.
class MVCALENDAR_EXPORT MvCalendarEvent
{
    Q_DECLARE_TR_FUNCTIONS(MvCalendarEvent)

public:
    /// The year of a date without one, such as a birthday from an address book that leaves the year out.
    static constexpr int unknownYear = MvTypedDate::unknownYear;
    /// How photos are decoded for the photo folder (MvFotoAccess::midRes()): medium resolution, kept in memory. What
    /// was decoded like this before is taken over without decoding again.
    static constexpr int fotoQuality = 4;
    static constexpr int fotoCaching = 13;

    /// An invalid entry: no name, no date; recurrent.
    MvCalendarEvent();
    /// Takes the photo over as setFoto() does; the last change is then now, whatever is given.
    MvCalendarEvent(const QString &name, const QDateTime &dateTime, bool recurrent, const MvFoto &foto,
                    const QUuid &uuid, const QDateTime &lastChanged);
    /// Reads the form that createXML() writes; what is missing takes its default, a missing uuid a new one.
    explicit MvCalendarEvent(const QDomElement &element);
    /// The same for an entry of a file, whose photo may lie beside that. A photo that may not be opened is kept by name
    /// and written back.
    MvCalendarEvent(const MvCalendarEventTexts &texts, MvCalendarEventFotoFinder &fotos);
    virtual ~MvCalendarEvent();
    MvCalendarEvent(const MvCalendarEvent &);
    MvCalendarEvent(MvCalendarEvent &&) noexcept;
    MvCalendarEvent &operator=(const MvCalendarEvent &);
    MvCalendarEvent &operator=(MvCalendarEvent &&) noexcept;

    /// Has a name and a date.
    bool isValid() const { return !m_name.isEmpty() && m_dateTime.isValid(); }

    QString description() const { return m_name; }
    /// Only the date counts.
    QDateTime dateTime() const { return m_dateTime; }
    /// False when only day and month are known: nobody is to see the year then.
    bool hasYear() const { return m_dateTime.date().year() != unknownYear; }
    /// The date as the time of an entry: its first moment, in world time where the local time zone left out the whole
    /// day, as Kiribati did with 31 December 1994.
    static QDateTime startOf(const QDate &date);
    /// "01.03.1941", or "01.03." without a year.
    static QString dateText(const QDate &date);
    /// True for every entry. The stored flag is another matter: files, comparisons and isAtDay() go by it.
    bool isRecurrent() const { return true; }
    MvFoto foto() const { return m_foto; }
    /// How it repeats beyond the flag; a default-constructed one for nearly all.
    const MvEventRepetition &repetition() const;
    /// The last day of an entry that lasts several; invalid for one of a single day.
    QDate endDate() const;
    /// When it begins; invalid for a whole day.
    QTime time() const;
    /// The ids of the groups that it belongs to, each once.
    QStringList groups() const;
    /// Who the entry is, across edits, saves and merges.
    QUuid uuid() const { return m_uuid; }
    QDateTime lastChanged() const { return m_lastChanged; }

    QFileInfo imagePath() const { return m_foto.localFileInfo(); }
    /// Pixels of the photo in full resolution; invalid without a photo that can be read.
    QSize imageSize() const;
    /// The photo in full resolution.
    MvDrawable image() const;
    /// Of the name alone.
    size_t hash() const { return qHash(m_name, 0); }

    // Each setter makes now the time of the last change.
    void setEventName(const QString &name);
    void setDateTime(const QDateTime &dateTime);
    void setRecurrent(bool recurrent);
    /// The rule, if there is one, counts instead of the flag, which remains for programs that know no rules.
    void setRepetition(const MvEventRepetition &repetition);
    /// An invalid day, the day of the entry or one before it makes it an entry of a single day.
    void setEndDate(const QDate &date);
    void setTime(const QTime &time);
    void setGroups(const QStringList &ids);
    /// Takes a part of another entry (MvCalendarEventContent::Part), but neither photo nor uuid.
    void takeContent(const MvCalendarEvent &other, int part);
    /// Stores a photo of the photo folder as it is, any other as a copy in that folder. A photo that may not be opened
    /// is only referred to. A photo that cannot be read or copied leaves the entry with the name of a file that does
    /// not exist: what people choose goes through takeFoto().
    void setFoto(const MvFoto &foto);
    /// The same for a photo that somebody has chosen: it is decoded first, and the entry changes only when the photo is
    /// in the photo folder. Else the entry stays as it is, and the error says why. The photo that the entry has
    /// already, and none, are always taken. Any thread.
    MvOutcome takeFoto(const MvFoto &foto);
    /// Refers to the photo where it lies: the same photo, moved or copied with its document. The entry has not changed.
    void relocateFoto(const MvFoto &foto) { m_foto = foto; }

    /// The same day and month; another year only when the stored flag says that the entry recurs. With a repetition or
    /// a span: whether one of its occurrences includes the day.
    bool isAtDay(const QDate &day) const;

    /// Spans of more days end after so many.
    static constexpr int longestSpan = 366;
    /// How many days an occurrence lasts, at least 1.
    int dayCount() const;
    /// Found by month and day alone: it neither spans days nor repeats in another way than by the flag.
    bool isByDayOfYear() const;
    /// The first days of the occurrences that begin in the year, ascending.
    QList<QDate> startsInYear(int year) const;
    /// The first day of the latest occurrence that includes the day; invalid when none does.
    QDate startAt(const QDate &day) const;
    /// The age at a birthday: years from the entry's date to the occurrence that begins on the day. 0 without a year,
    /// in that year, if not yearly, and if last changed by the end of that year: it may be just when it was typed in.
    int yearsAt(const QDate &start) const;

    /// "01.03.26: "Oma Erika"", the date in the default locale's short format; without its year where that is unknown.
    QString longDescription() const;
    QString debugString() const;

    /// Appends the element "CalendarEvent"; an empty one when the entry is invalid.
    void createXML(QDomNode &parent) const;
    /// The names and texts of its child elements, in order; none when the entry is invalid.
    QList<std::pair<QString, QString>> fileTexts() const;

    static constexpr QStringView imageDirectoryName = u"calendarEventFotos";
    /// The photo folder; created when missing.
    static QDir imageDirectory();
    /// Whether the file lies directly in the photo folder.
    bool isInAppSafeArea(const QFileInfo &file) const;
    /// In medium resolution; null and a warning when it cannot be read.
    QImage loadFotoAsThumbnail(const MvFoto &foto) const;
    /// Saves the image in the photo folder under a new name made from the photo's. The file does not exist when that
    /// failed, which logs a warning.
    QFileInfo saveImageToNewPosition(const QImage &image, const MvFoto &foto) const;
    /// What of an entry in a file cannot be read and would be lost in writing it back, for a person; else empty. Name
    /// and date do not count here.
    static QString whyUnreadable(const MvCalendarEventTexts &texts);
    /// The photo of the child element "Image", a relative path counting from the photo folder; no photo when the text
    /// is empty.
    MvFoto createFoto(const QDomElement &element) const;

    // Comparators for sorting. By date: month and day, like a birthday list; the year does not count.
    static bool lessThanDate(const MvCalendarEvent &a, const MvCalendarEvent &b);
    static bool greaterThanDate(const MvCalendarEvent &a, const MvCalendarEvent &b);
    static bool lessThanName(const MvCalendarEvent &a, const MvCalendarEvent &b);
    static bool greaterThanName(const MvCalendarEvent &a, const MvCalendarEvent &b);
    static bool lessThanRecurrent(const MvCalendarEvent &a, const MvCalendarEvent &b);
    static bool greaterThanRecurrent(const MvCalendarEvent &a, const MvCalendarEvent &b);

    /// Stored flag, name, date, photo, repetition, span, time and groups; uuid and time of the last change do not
    /// count.
    bool operator==(const MvCalendarEvent &other) const;
    /// Valid entries first, then non-recurrent ones (stored flag), then by name and date.
    bool operator<(const MvCalendarEvent &other) const;

    /// The stored flag that isRecurrent() does not show.
    bool storedRecurrent() const { return m_recurrent; }
    /// The same repetition, span, time and groups.
    bool hasSameExtras(const MvCalendarEvent &other) const;

private:
    friend struct MvCalendarEventContent;

    const MvCalendarEventExtras &extras() const;
    void setExtras(const MvCalendarEventExtras &extras);
    void read(const MvCalendarEventTexts &texts);
    void updateChangeTime();

    QString m_name;
    QDateTime m_dateTime;
    bool m_recurrent = true;
    MvFoto m_foto;
    QUuid m_uuid;
    QDateTime m_lastChanged;
    std::shared_ptr<const MvCalendarEventExtras> m_extras; // null for nearly all
};

MVCALENDAR_EXPORT QDebug operator<<(QDebug debug, const MvCalendarEvent &event);
/// Equal entries have equal hashes.
MVCALENDAR_EXPORT size_t qHash(const MvCalendarEvent &event, size_t seed = 0);

Q_DECLARE_METATYPE(MvCalendarEvent)
