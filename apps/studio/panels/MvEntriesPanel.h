// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "panels/MvPagePanel.h"

#include "MvCalendar/MvCalendarEvent.h"

class MvEntryList;
class MvProject;

/// The calendar's entries as a list, and whether changes of them reach the user's own.
class MvEntriesPanel : public MvPagePanel
{
    Q_OBJECT

public:
    /// The project is not owned.
    MvEntriesPanel(MvPageEdits *edits, MvProject *project, QWidget *parent);

Q_SIGNALS:
    /// Somebody wants to see the day of an entry on its page.
    void dayRequested(int page, const QDate &date);
    void groupsRequested();
    void message(const QString &text);

protected:
    void showPage() override;

private:
    /// A day on which the calendar has the entry, and the page that shows it; -1 for none.
    struct Place
    {
        int page = -1;
        QDate date;
    };
    Place placeOf(const MvCalendarEvent &event) const;
    void goTo(const MvCalendarEvent &event);

    MvEntryList *m_list;
};
