// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendarEventWorkList.h"
#include "MvCalendarWidgets/mvcalendarwidgets_export.h"

#include "MvCore/MvUndoCommand.h"

#include <functional>
#include <optional>

class QGraphicsObject;

/// Changes a personal entry in the active list of MvCalendarEventRegistry: an invalid entry before adds one, an
/// invalid entry after removes one. Without a difference the command is obsolete from the start.
///
/// It means the very entry, whatever became of it meanwhile: what another program has changed in other fields stays,
/// and what comes back stands where it stood.
///
/// It belongs to the list that is active when it is done; whoever makes another list the active one clears the undo
/// stack.
class MVCALENDARWIDGETS_EXPORT MvUndoCommandCalendarEvent : public MvUndoCommand
{
public:
    /// Repaints one canvas item, or does nothing when the item is gone.
    using Repaint = std::function<void()>;
    /// Makes the repaint of an item. It is to notice when the item is deleted: commands outlive items.
    using RepaintMaker = std::function<Repaint(QGraphicsObject *)>;

    /// The item, if any, is repainted after each change; it is not owned, and may be deleted before the command.
    MvUndoCommandCalendarEvent(const MvCalendarEvent &before, const MvCalendarEvent &after, QGraphicsObject *item);
    ~MvUndoCommandCalendarEvent() override;

    void doCoreAction() override;
    void undoCore() override;

    /// Changes the registry's entry and, if that made a difference, repaints the item.
    void change(const MvCalendarEvent &from, const MvCalendarEvent &to);

    /// Another way to repaint items, for commands made from now on; an empty one for the usual: update().
    static void setRepaintMaker(const RepaintMaker &maker);

private:
    void apply(MvCalendarEvent &from, MvCalendarEvent &to);
    void remove(MvCalendarEvent &event);
    void add(const MvCalendarEvent &event);
    void repaint();

    Repaint m_repaint;
    MvCalendarEvent m_before;
    MvCalendarEvent m_after;
    std::optional<MvCalendarEventWorkList::Place> m_place; // of the entry, once it was removed
};
