// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvProductBase/MvCalendariumHolidayConfig.h"
#include "MvProductBase/MvCalendariumHolidayList.h"
#include "plain/MvCliCommand.h"

#include <functional>

class MvCliValues;

/// "holidays": the holidays and school vacations of some years.
class MvHolidaysCommand : public MvCliCommand
{
    Q_DECLARE_TR_FUNCTIONS(MvHolidaysCommand)

public:
    /// Holidays and vacations of the years, both included, as iCalendar.
    using ToICalendar = std::function<QByteArray(const MvCalendariumHolidayConfig &, int firstYear, int lastYear)>;

    /// Without the function it can do all calls that are plain.
    explicit MvHolidaysCommand(const ToICalendar &toICalendar = {})
        : m_toICalendar(toICalendar)
    {}

    QString name() const override { return QStringLiteral("holidays"); }
    QString summary() const override;
    QList<MvCliOption> options() const override;
    QStringList examples() const override;
    bool isPlain(const QStringList &arguments) const override;
    Result run(const MvCliArguments &arguments, const Streams &streams) const override;

    struct Years
    {
        int first;
        int last;
    };
    /// "--year" and "--to"; the coming year without them.
    static Years years(MvCliValues &values);

private:
    static void printText(const MvCalendariumHolidayList &holidays, QTextStream &out);
    static void printCsv(const MvCalendariumHolidayList &holidays, QTextStream &out);
    static void printJson(const MvCalendariumHolidayList &holidays, QTextStream &out);

    ToICalendar m_toICalendar;
};
