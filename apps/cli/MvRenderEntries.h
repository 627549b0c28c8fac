// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendarEventFile.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QString>
#include <QTextStream>

/// The personal entries of a calendar that is printed: where they come from, and what of their file is left out.
class MvRenderEntries
{
    Q_DECLARE_TR_FUNCTIONS(MvRenderEntries)

public:
    /// Those of a file become the list that is printed; nothing is stored.
    static MvRenderEntries ofFile(const QFileInfo &file);
    /// The user's own ones, which the program has read.
    static MvRenderEntries own();

    /// Why nothing is to be printed, in one line for a person; empty when the entries are known.
    const QString &error() const { return m_error; }
    bool areShown() const { return m_areShown; }
    const QFileInfo &file() const { return m_file; }
    const QList<MvCalendarEventFile::Skipped> &skipped() const { return m_skipped; }

    /// Lines for a person: what was left out, and that there is nothing else.
    void printHints(QTextStream &hints) const;

private:
    QFileInfo m_file;
    QString m_error;
    bool m_areShown = false;
    bool m_isFile = false; // named by the call
    QList<MvCalendarEventFile::Skipped> m_skipped;
};
