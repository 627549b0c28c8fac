// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendarEvent.h"
#include "MvCalendar/MvSession.h"
#include "MvCalendarWidgets/mvcalendarwidgets_export.h"

#include <QWidget>

class QToolButton;

/// The buttons of an entry in a list. Edit opens the day editor, delete removes the entry as an undoable step.
class MVCALENDARWIDGETS_EXPORT MvCalendarEventDelegateEditDeleteWidget : public QWidget
{
    Q_OBJECT

public:
    MvCalendarEventDelegateEditDeleteWidget(const MvCalendarEvent &event, QWidget *parent,
                                            MvSession &session = MvSession::defaultSession());
    ~MvCalendarEventDelegateEditDeleteWidget() override;

    MvCalendarEvent calendarEvent() const { return m_event; }

public Q_SLOTS:
    void onEditEventRequested();
    void onDeleteEventRequested();

private:
    QToolButton *createButton(const QString &name, const QString &icon, const QString &text,
                              const QString &accessibleName);

    MvSession &m_session;
    MvCalendarEvent m_event;
};
