// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCore/MvSingleton.h"
#include "MvCore/mvcore_export.h"

#include <QString>
#include <QStringList>
#include <QUndoStack>

#include <memory>

class MvUndoCommand;
class MvUndoController;
extern template class MVCORE_EXPORT MvSingleton<MvUndoController>;

/// What the user has done, step by step, and can take back. Only what changed something becomes a step. To be used
/// from the GUI thread.
class MVCORE_EXPORT MvUndoController : public MvSingleton<MvUndoController>
{
public:
    MvUndoController();
    ~MvUndoController() override;

    /// Does the command at once and keeps it as the newest step; takes ownership. An obsolete command is deleted
    /// undone, and what could be redone stays so. Null is ignored.
    void push(MvUndoCommand *command);

    /// Everything pushed until the matching endMacro() is one step. Macros may stand in macros; one without commands
    /// leaves no step.
    void beginMacro(const QString &text);
    void endMacro();

    /// Nothing happens when there is nothing to undo or redo.
    void undo();
    void redo();
    /// Forgets all steps without undoing them, as when the document they belong to is closed.
    void clear();

    /// What undo() would take back and redo() do again, for a person; empty when there is nothing. Of a macro it is the
    /// visible name of its first command, or else the macro's text.
    QString undoName() const;
    QString redoName() const;

    /// For menus and lists of steps, and to know whether there are unsaved changes. Commands are pushed through the
    /// controller only.
    QUndoStack *stack() const { return m_stack.get(); }

private:
    std::unique_ptr<QUndoStack> m_stack;
    QStringList m_emptyMacros; // begun, but not on the stack before their first command
};
