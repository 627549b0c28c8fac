// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendarEventList.h"
#include "MvCalendar/mvcalendar_export.h"

#include "MvProductBase/MvVCardBirthdays.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QHash>
#include <QList>
#include <QStringList>

#include <atomic>

/// Makes entries of the birthdays and anniversaries in address books, with their photos. One object is one import.
///
/// The files may have any size: they are read twice, once for the dates and once for the photos of those who are new,
/// one card at a time. Both steps take a while; they may run in any thread, one after the other, while another asks
/// for the progress or cancels. Nothing is stored: the caller takes the entries over, or their photos are removed
/// again.
class MVCALENDAR_EXPORT MvAddressBookImport
{
    Q_DECLARE_TR_FUNCTIONS(MvAddressBookImport)

public:
    /// What became of the cards, for telling a person.
    struct Report
    {
        int found = 0;                  // birthdays and anniversaries, each once
        int known = 0;                  // of these, were in the list before
        int withoutDate = 0;            // cards
        int withoutName = 0;            // cards that have a date
        QStringList notUnderstood;      // "name: the date as it is written"
        QStringList unreadablePictures; // "name: reason"
        QStringList errors;             // of files
    };

    /// The language is that of the calendar, in which a wedding is named; at first the program's.
    explicit MvAddressBookImport(const QList<QFileInfo> &files, const MvLocale &language = {});
    ~MvAddressBookImport();
    MvAddressBookImport(const MvAddressBookImport &) = delete;
    MvAddressBookImport &operator=(const MvAddressBookImport &) = delete;

    /// The first step: who has a birthday.
    void readCards();
    /// A date whose order of day and month nothing in its file settles; empty when no order has to be said.
    MvVCardDate openExample() const { return m_birthdays.openExample(); }
    /// The second step: entries for those whose uuid is not in the list, and copies of their photos in the photo
    /// folder. The order is for the dates that nothing settles; without one they are not understood.
    void makeEntries(const MvCalendarEventList &known, MvVCardDate::Order order);

    /// The new entries. Their photos now belong to the caller.
    MvCalendarEventList takeEvents();
    const Report &report() const { return m_report; }

    /// Ends a running step soon. Photos that were copied are removed.
    void cancel() { m_isCancelled = true; }
    bool isCancelled() const { return m_isCancelled; }
    /// Of both steps together, from 0 to 1.
    double progress() const;

private:
    using EventsByCard = QHash<int, QList<qsizetype>>; // positions of entries by the number of the card

    EventsByCard makeEvents(const MvCalendarEventList &known, MvVCardDate::Order order);
    void copyFotos(EventsByCard wanted);
    void copyFoto(const MvVCard &card, const QList<qsizetype> &events);
    void removeFotos();
    bool goOn(qint64 bytesRead);

    const QList<QFileInfo> m_files;
    const MvLocale m_language;
    const QDir m_fotoFolder;
    qint64 m_totalBytes = 0;
    MvVCardBirthdays m_birthdays;
    MvCalendarEventList m_events;
    QStringList m_fotos; // paths of copies nobody has taken over yet
    Report m_report;
    qint64 m_bytesBefore = 0; // read of other files and in the step before
    std::atomic<qint64> m_bytesRead = 0;
    std::atomic<bool> m_isCancelled = false;
};
