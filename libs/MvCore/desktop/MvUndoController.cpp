// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCore/MvUndoController.h"

#include "MvCore/MvUndoCommand.h"

#include <utility>

template class MvSingleton<MvUndoController>;

namespace {

QString nameOf(const QUndoCommand *step)
{
    if (!step)
        return {};
    for (const QUndoCommand *command : {step, step->child(0)}) {
        const auto *own = dynamic_cast<const MvUndoCommand *>(command); // macros are commands of the stack's own
        if (own && !own->visibleName().isEmpty())
            return own->visibleName();
    }
    return step->text();
}

} // namespace

MvUndoController::MvUndoController()
    : m_stack(std::make_unique<QUndoStack>())
{}

MvUndoController::~MvUndoController() = default;

void MvUndoController::push(MvUndoCommand *command)
{
    if (!command || command->isObsolete()) {
        delete command;
        return;
    }
    const QStringList macros = std::exchange(m_emptyMacros, {});
    for (const QString &text : macros)
        m_stack->beginMacro(text);
    m_stack->push(command);
}

void MvUndoController::beginMacro(const QString &text)
{
    m_emptyMacros.append(text);
}

void MvUndoController::endMacro()
{
    if (m_emptyMacros.isEmpty())
        m_stack->endMacro();
    else
        m_emptyMacros.removeLast();
}

void MvUndoController::undo()
{
    if (m_stack->canUndo() && m_emptyMacros.isEmpty())
        m_stack->undo();
}

void MvUndoController::redo()
{
    if (m_stack->canRedo() && m_emptyMacros.isEmpty())
        m_stack->redo();
}

QString MvUndoController::undoName() const
{
    return nameOf(m_stack->command(m_stack->index() - 1));
}

QString MvUndoController::redoName() const
{
    return nameOf(m_stack->command(m_stack->index()));
}

void MvUndoController::clear()
{
    m_emptyMacros.clear();
    m_stack->clear();
}
