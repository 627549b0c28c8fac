// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCore/MvUndoCommand.h"
#include "MvProject/MvCalendarDocument.h"

#include <QPointer>

#include <chrono>

class MvProject;

/// A change of the open project's document. Changes of one kind on one page that follow each other closely become one
/// step: typing, the arrows of a spin box.
class MvUndoCommandDocument : public MvUndoCommand
{
public:
    /// Changes closer to each other than this merge.
    static constexpr std::chrono::milliseconds mergeWindow{1000};

    /// A negative merge id never merges. The page is -1 for the whole document.
    MvUndoCommandDocument(MvProject *project, const MvCalendarDocument &after, const QString &text, int page,
                          int mergeId);

    void doCoreAction() override;
    void undoCore() override;
    int id() const override;
    bool mergeWith(const QUndoCommand *other) override;

private:
    QPointer<MvProject> m_project;
    MvCalendarDocument m_before;
    MvCalendarDocument m_after;
    int m_page;
    int m_mergeId;
    std::chrono::steady_clock::time_point m_time = std::chrono::steady_clock::now();
};
