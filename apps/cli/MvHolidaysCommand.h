// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCliCommand.h"
#include "MvProductBase/MvCalendariumHolidayList.h"

class MvCliValues;

/// "holidays": the holidays and school vacations of some years.
class MvHolidaysCommand : public MvCliCommand
{
    Q_DECLARE_TR_FUNCTIONS(MvHolidaysCommand)

public:
    QString name() const override { return QStringLiteral("holidays"); }
    QString summary() const override;
    QList<MvCliOption> options() const override;
    QStringList examples() const override;
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
};
