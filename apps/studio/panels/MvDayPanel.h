// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "panels/MvPagePanel.h"

#include "MvCalendar/MvCalendarEventList.h"

class MvPageSelection;
class MvProject;
class QListWidget;
class QPushButton;

/// The entries of the chosen day, to be changed, added to and taken away.
class MvDayPanel : public MvPagePanel
{
    Q_OBJECT

public:
    /// Selection and project are not owned.
    MvDayPanel(MvPageEdits *edits, MvPageSelection *selection, MvProject *project, QWidget *parent);

protected:
    void showPage() override;

private:
    void openEditor(const MvCalendarEvent &event);
    void editCurrent();
    void removeCurrent();

    MvPageSelection *m_selection;
    QListWidget *m_list;
    QPushButton *m_edit;
    QPushButton *m_remove;
    MvCalendarEventList m_events;
};
