// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCore/mvcore_export.h"

#include <QString>
#include <QUndoCommand>

/// A step that the user can take back. What it does stands in two hooks; children, if any, are done after the command
/// itself and undone before it.
///
/// A command that is found to change nothing says so by setObsolete(); MvUndoController then drops it.
class MVCORE_EXPORT MvUndoCommand : public QUndoCommand
{
public:
    /// A parent owns its children.
    explicit MvUndoCommand(const QString &text = {}, QUndoCommand *parent = nullptr);
    ~MvUndoCommand() override;

    void redo() final;
    void undo() final;

    /// What the step does, for a person, where the command's text is made for the log; empty where the text serves
    /// both.
    virtual QString visibleName() const { return {}; }

    virtual void doCoreAction() = 0;
    virtual void undoCore() = 0;
};
