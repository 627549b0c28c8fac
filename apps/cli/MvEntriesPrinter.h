// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendarEventList.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QString>
#include <QStringList>

/// A list of entries in the forms that the command line gives.
class MvEntriesPrinter
{
    Q_DECLARE_TR_FUNCTIONS(MvEntriesPrinter)

public:
    /// "text", which is for people, "json", and those that other programs read.
    static QStringList formats();
    static QByteArray toBytes(const MvCalendarEventList &events, const QString &format);
    /// "17.05.1941 – 19.05.1941"
    static QString datesOf(const MvCalendarEvent &event);

private:
    static QByteArray toText(const MvCalendarEventList &events);
    static QByteArray toJson(const MvCalendarEventList &events);
};
