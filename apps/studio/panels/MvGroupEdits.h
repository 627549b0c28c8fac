// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvEventGroup.h"
#include "MvProductBase/MvEntryDisplay.h"

#include <QColor>
#include <QCoreApplication>
#include <QString>

class MvPageEdits;

/// What a person does to the groups of the calendar's entries, and to which of them the calendar shows. Each call is
/// one step that can be undone; without a difference there is none.
class MvGroupEdits
{
    Q_DECLARE_TR_FUNCTIONS(MvGroupEdits)

public:
    /// Not owned.
    explicit MvGroupEdits(MvPageEdits *edits)
        : m_edits(edits)
    {}

    MvEventGroupList groups() const;
    MvEntryDisplay display() const;
    bool isShown(const QString &id) const { return !display().hiddenGroups.contains(id); }

    /// A new group in a colour that no other has and that can be read on the calendar's days. Gives its id.
    QString add();
    /// Replaces the group of the same id. Columns that are headed by its name are headed by the new one.
    void change(const MvEventGroup &group, const QString &name);
    /// False, and no change, for a name that another group has, or none.
    bool rename(const QString &id, const QString &name);
    /// Its entries stay, without it.
    void remove(const QString &id);
    /// By so many places in the list.
    void move(const QString &id, int places);
    void setShown(const QString &id, bool isShown);
    void setDisplay(const MvEntryDisplay &display, const QString &name);

    /// The groups' names as the columns of the pages in scope; before them a column without a name where entries
    /// belong to none of them.
    void makeColumns();
    /// Groups that the calendar shows.
    MvEventGroupList shownGroups() const;

private:
    QColor freeColor() const;

    MvPageEdits *m_edits;
};
