// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/mvcalendar_export.h"
#include "MvCore/MvInitializerAbstract.h"

/// The module's start-up hook: makes the shipped fonts known to the program, personal entries and holidays to the text
/// compiler, and the cell types of the renderers to the appearance. Registers itself when the library is loaded.
class MVCALENDAR_EXPORT MvCalendarInitializer : public MvInitializerAbstract
{
public:
    MvCalendarInitializer();

    void setup(MvInitializerOption option) override;
    void teardown() override;

    void initCalendarHolidays();

private:
    static MvCalendarInitializer me;
};
