// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCliProject.h"
#include "MvProject/MvNewCalendar.h"
#include "plain/MvCliArguments.h"
#include "plain/MvCliOption.h"

#include <QCoreApplication>
#include <QList>
#include <QStringList>

class MvCliValues;
class QTextStream;

/// A photo calendar that a call describes: cover, months and back in a theme, with the photos of files and folders on
/// its pages.
class MvFotoCalendar
{
    Q_DECLARE_TR_FUNCTIONS(MvFotoCalendar)

public:
    /// "--photos", "--theme" and what belongs to them.
    static QList<MvCliOption> options();
    /// Whether the call has one of them.
    static bool isAsked(const MvCliValues &values);

    MvFotoCalendar() = default;
    /// Takes theme, period, holidays and paper from the options. Mistakes are left with the values.
    MvFotoCalendar(MvCliValues &values, const MvCliArguments &arguments);

    /// Reads the photos and lays them on the pages. Files and folders that are not there are an error; what was left
    /// out, and photos that found no place, give hints.
    MvCliProject make(QTextStream &hints) const;

private:
    QStringList m_paths; // of photos and folders
    MvNewCalendar m_calendar;
};
