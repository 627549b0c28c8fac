// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendarEventList.h"

#include <QDate>
#include <QObject>
#include <QPoint>
#include <QPointF>
#include <QPointer>

#include <memory>

class MvEntryBubble;
class MvEntryMove;
class MvPageDropTarget;
class MvPageItem;
class MvProject;
class QGraphicsView;

/// The entries of the shown page under the mouse: a click on a day opens their bubble, and an entry's text that is
/// dragged to another day moves it there, with Ctrl a copy.
///
/// Whoever has the view hands over what the mouse does. Nothing is owned.
class MvPageEntries : public QObject
{
    Q_OBJECT

public:
    MvPageEntries(MvProject *project, MvPageItem *item, QGraphicsView *view);
    ~MvPageEntries() override;

    /// Those that the page shows on the date.
    MvCalendarEventList entriesOn(const QDate &date) const;
    /// The entry whose text is at the point of the page; invalid when there is none.
    MvCalendarEvent entryAt(const QPointF &onPage) const;

    // the mouse, by points of the view
    /// The left button goes down on a day.
    void press(const QPoint &position);
    /// True while an entry is dragged.
    bool move(const QPoint &position, Qt::KeyboardModifiers modifiers);
    /// True when something was dragged: it is no click.
    bool release(const QPoint &position, Qt::KeyboardModifiers modifiers);
    /// Ctrl goes down or up while the mouse rests.
    void setModifiers(Qt::KeyboardModifiers modifiers);
    /// False when nothing is dragged.
    bool cancel();
    bool isDragging() const { return m_isDragging; }

    /// The bubble that is open; null when none is.
    MvEntryBubble *bubble() const;

public Q_SLOTS:
    void openDay(const QDate &date, const QPoint &source);

Q_SIGNALS:
    void message(const QString &text);

private:
    QPointF onPage(const QPoint &position) const;
    QRect screenRect(const QDate &date) const;
    void begin();
    void end();
    void show();
    void drop(const MvEntryMove &move, bool isCopy);

    MvProject *m_project;
    MvPageItem *m_item;
    QGraphicsView *m_view;
    MvPageDropTarget *m_target;
    QPointer<MvEntryBubble> m_bubble;
    MvCalendarEvent m_pressed; // under the mouse when the button went down
    QPoint m_pressedAt;
    QDate m_from;
    QDate m_to;
    QDate m_waiting; // to be opened when the button goes up without a drag
    QPoint m_waitingAt;
    bool m_isDragging = false;
    bool m_isCopy = false;
};
