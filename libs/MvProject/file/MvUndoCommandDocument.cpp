// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProject/MvUndoCommandDocument.h"

#include "MvProject/MvProject.h"

namespace {

constexpr int commandId = 0x6d766370; // of all commands of this class, for the undo stack

} // namespace

MvUndoCommandDocument::MvUndoCommandDocument(MvProject *project, const MvCalendarDocument &after, const QString &text,
                                             int page, int mergeId)
    : MvUndoCommand(text)
    , m_project(project)
    , m_before(project->document())
    , m_after(after)
    , m_page(page)
    , m_mergeId(mergeId)
{
    setObsolete(m_before == m_after);
}

void MvUndoCommandDocument::doCoreAction()
{
    if (m_project)
        m_project->apply(m_after);
}

void MvUndoCommandDocument::undoCore()
{
    if (m_project)
        m_project->apply(m_before);
}

int MvUndoCommandDocument::id() const
{
    return m_mergeId < 0 ? -1 : commandId;
}

bool MvUndoCommandDocument::mergeWith(const QUndoCommand *other)
{
    const auto *next = dynamic_cast<const MvUndoCommandDocument *>(other);
    if (!next || next->m_mergeId != m_mergeId || next->m_page != m_page || next->m_time - m_time >= mergeWindow)
        return false;
    m_after = next->m_after;
    m_time = next->m_time;
    setObsolete(m_before == m_after);
    return true;
}
