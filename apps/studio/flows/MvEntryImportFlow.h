// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvEntryFileImport.h"

#include <QObject>
#include <QStringList>

#include <optional>

class MvBirthdayImport;
class MvSession;
class QWidget;

/// Files of dates that were dropped on the window or chosen: visiting cards go the way of birthdays, everything else
/// comes into the calendar's entries, and what became of it is told.
class MvEntryImportFlow : public QObject
{
    Q_OBJECT

public:
    /// The window is the parent of all dialogs; nothing is owned.
    MvEntryImportFlow(MvSession &session, MvBirthdayImport *birthdays, QWidget *window);

public Q_SLOTS:
    /// Asks for files.
    void start();
    /// Files that come while others are read wait for these; they are for the calendar that is open now.
    void import(const QStringList &files);

Q_SIGNALS:
    void message(const QString &text);
    /// Everything has been read, and told.
    void finished();

private:
    void begin();
    bool dropOfOther();
    void tell(const MvEntryFileImport::Result &result);

    MvSession &m_session;
    MvEntryFileImport *m_import;
    MvBirthdayImport *m_birthdays;
    QWidget *m_window;
    QStringList m_waiting;
    std::optional<MvOpenCalendar> m_calendar; // for which they wait
};
