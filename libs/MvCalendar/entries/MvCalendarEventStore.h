// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendarEventFile.h"
#include "MvCalendar/MvCalendarEventList.h"
#include "MvCalendar/mvcalendar_export.h"
#include "MvCore/MvOutcome.h"

#include <QByteArray>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QList>
#include <QObject>
#include <QString>
#include <QTimer>

#include <functional>
#include <memory>
#include <optional>

class MvCalendarEventBytes;

/// The user's file of entries on disk ("calendarEvents.xml"), which several running programs may share.
///
/// Nothing is written without the file's lock, and before writing, what others have changed since is taken in. Nobody
/// waits for the lock: while another program holds it, a change stays pending and is tried again from the event loop.
/// A change that could not be written stays pending too, until the next change or saveNow(). A file that could not be
/// read, or not as a whole, is set aside before it is overwritten.
///
/// Belongs to MvCalendarEventRegistry, which holds the entries; to be used from its thread. For entries that live in
/// memory only there is no such file: then nothing is read or written, and nothing is ever pending.
class MVCALENDAR_EXPORT MvCalendarEventStore : public QObject
{
    Q_OBJECT

public:
    /// What a person must know about the file.
    struct Problem
    {
        enum Kind {
            None,
            Unreadable,     // its entries are not in the list
            PartlyReadable, // some of its entries are not in the list
            NotSaved,       // the last writing failed; the file holds an older state
            Busy,           // another program keeps the file locked, for seconds already
        };

        Kind kind = None;
        QString text;             // for a person, with the file's name and the reason
        QFileInfo file;           // the user's file
        QFileInfo setAside;       // where the unreadable file was kept; without a path as long as it is in place
        QList<QFileInfo> backups; // of the file: the previous version first, then the days, newest first
        QList<MvCalendarEventFile::Skipped> skipped; // what of a partly readable file is not in the list

        bool isProblem() const { return kind != None; }
        bool operator==(const Problem &other) const;
    };

    enum class Kept { InUserFile, InMemory };

    /// Takes a list over.
    using Adopt = std::function<void(const MvCalendarEventList &)>;

    explicit MvCalendarEventStore(QObject *parent = nullptr);
    MvCalendarEventStore(Kept kept, QObject *parent);
    ~MvCalendarEventStore() override;

    /// The file, whether it exists or not; one without a path in memory.
    QFileInfo file() const;
    bool isFile(const QFileInfo &file) const;
    /// It exists.
    bool isInPlace() const;

    // ---- what a person must know, and can do about it

    /// What troubles writing comes before what troubled reading.
    Problem problem() const;
    /// The list in memory is not on disk yet.
    bool hasUnsavedChanges() const { return m_pending.has_value(); }
    /// Tries again to write what is pending. Does not wait for the lock; true when nothing is pending afterwards.
    bool saveNow();
    /// Makes the entries of a backup the list, together with what was changed here since the problem arose; the present
    /// file is set aside, the list written and eventsReplaced() emitted. An error, and nothing changed, when the backup
    /// cannot be read or the present file neither locked nor set aside.
    MvOutcome restoreBackup(const QFileInfo &backup);
    /// The person wants to go on without what could not be read: that problem is over.
    void dismissReadProblem();

    // ---- for the registry

    /// Reads the file. What it holds becomes the state that later changes of others are compared with, if it is to
    /// become the whole list of the caller; otherwise the state of before stays that.
    MvCalendarEventFile::Content read(bool becomesTheList);
    /// Writes the list together with what others have changed; `adopt` gets that before it is written. Without `adopt`
    /// the caller's list stays as it is, and takes in the others' changes with the next call. When the file is
    /// locked, or cannot be written, the list stays pending and is adopted as it is. What is in the file already is
    /// not written again.
    void keep(const MvCalendarEventList &events, const Adopt &adopt);
    /// The list together with what others have written since the file was last read or written here.
    MvCalendarEventList withChangesOfOthers(const MvCalendarEventList &events);
    /// Every entry of the file is known: it was read as a whole whenever it was read. Never so in memory: what the
    /// file holds is not known there.
    bool isWhole() const { return m_kept == Kept::InUserFile && !m_mustBeSetAside && !m_couldNotBeRead; }
    /// Writes the list to another file, which has no part in what is kept here.
    void writeElsewhere(const QFileInfo &file, const MvCalendarEventList &events);
    /// Why the last saving, here or elsewhere, failed, for a person; empty when it did not.
    QString saveError() const { return m_errorElsewhere.value_or(m_writeProblem.text); }

Q_SIGNALS:
    /// problem() is another one, or none any more.
    void problemChanged();
    /// What was pending has been written together with changes of others, or a backup restored: this is the list now.
    void eventsReplaced(const MvCalendarEventList &events);

private:
    struct Pending
    {
        MvCalendarEventList events;
        bool adopts = false; // the caller takes changes of others over
    };

    void tryPending(const Adopt &adopt);
    bool write(const MvCalendarEventList &events);
    bool isInFile(const MvCalendarEventList &events) const;
    QString savingLine() const;
    void noteWritten(const MvCalendarEventList &events);
    bool setAside();
    void noteContent(const MvCalendarEventFile::Content &content);
    void waitForOthers(const QString &reason);
    Problem problemOf(Problem::Kind kind, const QString &text) const;
    QString notSaved(const QString &reason) const;
    void fail(Problem::Kind kind, const QString &text);
    void changeProblem(Problem *problem, const Problem &value);

    Kept m_kept = Kept::InUserFile;
    std::unique_ptr<MvCalendarEventBytes> m_bytes; // of the file
    std::optional<Pending> m_pending;
    MvCalendarEventList m_present;  // the list as last read, handed over or adopted
    MvCalendarEventList m_inFile;   // what the file held when last read or written here
    MvCalendarEventList m_lastRead; // what could be read when the problem of reading arose
    QByteArray m_stamp;             // the state of the file at that time
    bool m_isWrittenHere = false;   // it was m_inFile that was written here last
    bool m_mustBeSetAside = false;  // it holds what is not in the list: keep it before overwriting
    bool m_couldNotBeRead = false;  // some of its entries, and so the photos in use, are unknown
    Problem m_readProblem;
    Problem m_writeProblem;
    std::optional<QString> m_errorElsewhere; // of the last saving, if that was to another file
    QTimer m_retry;
    QElapsedTimer m_waiting; // for the lock
};
