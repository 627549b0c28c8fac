// SPDX-License-Identifier: LGPL-2.1-or-later
#include "panels/MvOwnColors.h"

#include <algorithm>

QList<MvCalendariumColorSchema> MvOwnColors::colors() const
{
    QList<MvCalendariumColorSchema> colors;
    for (const Entry &entry : m_entries)
        colors.append(entry.schema);
    return colors;
}

void MvOwnColors::update(const QList<MvCalendariumColorSchema> &ofPages)
{
    for (Entry &entry : m_entries)
        entry.isOnPage = ofPages.contains(entry.schema);
    m_entries.removeIf([](const Entry &entry) { return !entry.isOnPage && !entry.isKept; });
    for (const MvCalendariumColorSchema &schema : ofPages) {
        const bool isKnown = std::any_of(m_entries.cbegin(), m_entries.cend(),
                                         [&schema](const Entry &entry) { return entry.schema == schema; });
        if (!isKnown)
            m_entries.append({schema});
    }
    forgetUndone();
}

void MvOwnColors::setUndoSteps(int steps)
{
    m_undoSteps = steps;
    for (Entry &entry : m_entries) {
        if (entry.madeBy < 0)
            entry.madeBy = steps;
    }
    forgetUndone();
}

void MvOwnColors::forgetUndone()
{
    m_entries.removeIf([this](const Entry &entry) { return !entry.isOnPage && m_undoSteps < entry.madeBy; });
}

void MvOwnColors::keepPresent()
{
    for (Entry &entry : m_entries)
        entry.isKept = true;
}

void MvOwnColors::forgetUnused()
{
    m_entries.removeIf([](const Entry &entry) { return !entry.isOnPage; });
}
