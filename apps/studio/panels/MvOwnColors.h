// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendariumColorSchema.h"

#include <QList>

/// Colours that were made for the pages and are no registered schema. Those that another schema took the place of stay
/// at hand: until the project is saved without them, or the making of them is undone.
class MvOwnColors
{
public:
    /// In the order in which they were met.
    QList<MvCalendariumColorSchema> colors() const;

    /// Takes in the schemas that the pages have now.
    void update(const QList<MvCalendariumColorSchema> &ofPages);
    /// How many steps can be undone, after each of them.
    void setUndoSteps(int steps);
    /// Another schema is about to take the place of what the pages have.
    void keepPresent();
    /// What no page has is given up.
    void forgetUnused();
    void clear() { m_entries.clear(); }

private:
    struct Entry
    {
        MvCalendariumColorSchema schema;
        int madeBy = -1; // the number of undo steps right after it was made; not known before the step is done
        bool isOnPage = true;
        bool isKept = false;
    };

    void forgetUndone();

    QList<Entry> m_entries;
    int m_undoSteps = 0;
};
