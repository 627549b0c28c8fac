// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvProject/MvPrintFinding.h"

#include <QBasicTimer>
#include <QList>
#include <QObject>

class MvFotoPages;
class MvProject;

/// Knows what will not print well on the pages of the open project: texts without room, characters that no font has,
/// photos of too low resolution, what stands in the binding. Frames that are still empty are no news while somebody
/// works. It looks at one page at a time, when the program has nothing else to do, a while after the last change.
class MvUnfittingWatch : public QObject
{
    Q_OBJECT

public:
    using Entry = MvPrintFinding;

    /// The project is not owned and must outlive the watch.
    explicit MvUnfittingWatch(MvProject *project, QObject *parent = nullptr);

    /// In the order of the pages; what is known so far.
    QList<Entry> entries() const;
    /// True when every page has been looked at since it changed.
    bool isComplete() const;

Q_SIGNALS:
    void changed();

protected:
    void timerEvent(QTimerEvent *event) override;

private:
    struct Page
    {
        QList<Entry> notes;
        bool isDue = true;
    };

    void invalidate(int page);
    void reset();

    MvProject *m_project;
    QList<Page> m_pages;
    MvFotoPages *m_entryFotos;
    QBasicTimer m_timer;
    bool m_hasNews = false;
};
