// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendarEventFotoIntake.h"
#include "MvCalendarWidgets/mvcalendarwidgets_export.h"

#include <QWidget>

class QToolButton;

/// The buttons over the photo of an entry in a list: choose another one, remove it.
class MVCALENDARWIDGETS_EXPORT MvCalendarEventFotoDelegateEditorWidget : public QWidget
{
    Q_OBJECT

public:
    MvCalendarEventFotoDelegateEditorWidget(const MvCalendarEvent &event, QWidget *parent,
                                            MvSession &session = MvSession::defaultSession());
    ~MvCalendarEventFotoDelegateEditorWidget() override;

    void setCalendarEvent(const MvCalendarEvent &event);
    /// The entry with the photo as chosen.
    MvCalendarEvent calendarEvent() const { return m_event; }
    /// Makes the buttons fit the entry.
    void applyIcon();

    /// Asks for the file of a photo and hands over the entry without and with that photo, as
    /// MvCalendarEventFotoIntake does. Nothing happens when none is chosen; a file that is no photo is reported.
    static void requestFoto(const MvCalendarEvent &event, QWidget *asker, const MvCalendarEventFotoIntake::Use &use,
                            MvSession &session = MvSession::defaultSession());

public Q_SLOTS:
    void onChangeImageButtonClicked();
    void onRemoveImageButtonClicked();

Q_SIGNALS:
    /// The user has chosen or removed the photo.
    void calendarEventChanged();

private:
    QToolButton *createButton(const QString &name, const QString &icon);

    MvSession &m_session;
    MvCalendarEvent m_event;
    QToolButton *m_changeButton;
    QToolButton *m_removeButton;
};
