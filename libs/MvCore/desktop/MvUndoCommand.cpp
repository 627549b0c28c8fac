// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCore/MvUndoCommand.h"

MvUndoCommand::MvUndoCommand(const QString &text, QUndoCommand *parent)
    : QUndoCommand(text, parent)
{}

MvUndoCommand::~MvUndoCommand() = default;

void MvUndoCommand::redo()
{
    doCoreAction();
    QUndoCommand::redo(); // the children
}

void MvUndoCommand::undo()
{
    QUndoCommand::undo();
    undoCore();
}
