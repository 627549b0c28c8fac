// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvEntryIntake.h"
#include "MvCalendar/MvOpenCalendar.h"
#include "MvCalendar/MvSession.h"
#include "MvCalendarWidgets/mvcalendarwidgets_export.h"

#include <QObject>
#include <QStringList>

#include <optional>

class QWidget;

/// Takes entries of files into the list of a session: lists, calendars and tables, what each is by its content. Tables
/// are shown first (MvEntryTableDialog). All files together are one step that can be undone, and taking them in a
/// second time changes nothing. They are for the calendar that is open when they are read, and for no other.
class MVCALENDARWIDGETS_EXPORT MvEntryFileImport : public QObject
{
    Q_OBJECT

public:
    /// What has become of the files.
    struct Result
    {
        MvEntryIntake::Report report; ///< of all files
        QStringList lines;            ///< what was left out, file by file, with line and reason
        QStringList errors;           ///< files that could not be read
        bool isCancelled = false;     ///< nothing was taken
        bool isDropped = false;       ///< nor was it, as another calendar is open by now

        /// "3 neu, 1 geändert, 40 gleich, 2 ausgelassen"
        QString summary() const;
    };

    /// The window is the parent of dialogs.
    MvEntryFileImport(MvSession &session, QWidget *window);
    ~MvEntryFileImport() override;

    bool isRunning() const { return m_isRunning; }
    /// Reads in the background and asks where that is needed. Nothing happens while others are read.
    void import(const QStringList &files);

Q_SIGNALS:
    void finished(const MvEntryFileImport::Result &result);

private:
    void next();
    void askForTable(const QString &file);
    void readInThread(const QString &file);
    void add(const QString &file, const MvEntryReading &reading);
    void copyFotos();
    void take();
    void finish();

    MvSession &m_session;
    QWidget *m_window;
    QStringList m_files; // still to be read
    QList<std::pair<QString, MvEntryReading>> m_readings;
    Result m_result;
    std::optional<MvOpenCalendar> m_calendar; // for which files are read
    bool m_isRunning = false;
};
