// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendarEvent.h"
#include "MvCalendar/MvSession.h"
#include "MvCalendarWidgets/mvcalendarwidgets_export.h"

#include <QMenu>

class MvCalendariumHolidayConfig;

/// The menu of a day on the canvas: an action to edit each of the day's personal entries, and one for a new entry.
///
/// It opens nothing itself: whoever shows it opens the editor for what was chosen.
class MVCALENDARWIDGETS_EXPORT MvDayMenu : public QMenu
{
    Q_OBJECT

public:
    /// The entries are those that the configuration shows on the date.
    MvDayMenu(const QDate &date, const MvCalendariumHolidayConfig &config, MvSession &session, QWidget *parent);
    ~MvDayMenu() override;

    /// What can be chosen, in order: the entries, then the new one.
    QList<QAction *> choices() const;

    /// A recurrent entry on the date that is in no list yet.
    static MvCalendarEvent newEntryAt(const QDate &date);

Q_SIGNALS:
    /// An entry of the list as it is by now, or a new one. Not for an entry that has gone while the menu stood open.
    void entryChosen(const MvCalendarEvent &event);

private:
    void addChoice(const QString &text, const MvCalendarEvent &event);

    MvSession &m_session;
};
