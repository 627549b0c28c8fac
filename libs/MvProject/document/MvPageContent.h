// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvMonthTable.h"

#include <QColor>
#include <QList>
#include <QString>
#include <QStringList>

/// A page as it is read: its texts and its months, in reading order, without where they stand.
struct MvPageContent
{
    QString name; ///< of the page, "Mai 2027"
    QStringList texts;
    QList<MvMonthTable> months;
    QColor ground; ///< of the page
    QColor ink;    ///< of what is written on it
};
