// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

class MvCalendarDocument;

/// What a person chose for the last calendar and will want for the next: country, region, paper and bleed. Kept in the
/// settings of the studio.
class MvCalendarHabits
{
public:
    static void remember(const MvCalendarDocument &document);
    /// Gives a new calendar what was remembered; what never was stays as it is.
    static void applyTo(MvCalendarDocument &document);
};
