// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvProject/MvCalendarDocument.h"
#include "plain/MvCliOption.h"

#include <QCoreApplication>
#include <QList>
#include <QStringList>

class MvCliValues;

/// The options that say what a calendar shows: period, holidays, look, paper. Several commands make calendars of them.
///
/// Mistakes are left with the values, which keep the first one; what is given back then is not to be used.
class MvCalendarOptions
{
    Q_DECLARE_TR_FUNCTIONS(MvCalendarOptions)

public:
    /// Which months, and whose holidays.
    static QList<MvCliOption> content();
    /// Layout, colours, font.
    static QList<MvCliOption> look();
    /// Format, direction, bleed, binding.
    static QList<MvCliOption> paper();
    /// The names of all of them: what a project decides.
    static QStringList names();

    static MvDateRange range(MvCliValues &values);
    static MvCalendariumHolidayConfig holidayConfig(MvCliValues &values);
    static MvCalendariumAppearance appearance(MvCliValues &values);
    static MvPageFormat pageFormat(MvCliValues &values);
    /// A calendar of simple pages as the options have it.
    static MvCalendarDocument document(MvCliValues &values);
    /// Why no calendar at all can be made, whatever the options, when this one cannot; else empty.
    static QString problem(const MvCalendarDocument &document);

private:
    /// The headings of the free columns.
    static QStringList columns(MvCliValues &values, const MvCalendariumAppearance &appearance);
};
