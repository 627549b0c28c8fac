// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvProject/MvPrintFinding.h"

#include <QBasicTimer>
#include <QList>
#include <QObject>

class MvFotoPages;
class MvProject;

/// Knows what will not print well on the pages of the open project: the one list that status bar, print check, export
/// and print preview show. It looks at one page at a time, when the program has nothing else to do, a while after the
/// last change.
class MvPrintWatch : public QObject
{
    Q_OBJECT

public:
    /// The project is not owned and must outlive the watch.
    explicit MvPrintWatch(MvProject *project, QObject *parent = nullptr);

    /// In the order of the pages; what is known so far.
    QList<MvPrintFinding> findings() const;
    /// Those of pages, counted from 0.
    QList<MvPrintFinding> findings(const QList<int> &pages) const;
    /// Without frames that are still empty: while somebody works, they are no news.
    QList<MvPrintFinding> notes() const;
    /// True when every page has been looked at since it changed.
    bool isComplete() const;
    /// Somebody waits for it: what has changed is looked at as soon as the program has a moment.
    void hurry();

Q_SIGNALS:
    /// All pages have been looked at, and something is new.
    void changed();
    /// All pages have been looked at.
    void completed();

protected:
    void timerEvent(QTimerEvent *event) override;

private:
    struct Page
    {
        QList<MvPrintFinding> findings;
        bool isDue = true;
    };

    void invalidate(int page);
    void reset();
    void lookAt(int page);

    MvProject *m_project;
    QList<Page> m_pages;
    MvFotoPages *m_entryFotos;
    QBasicTimer m_timer;
    bool m_hasNews = false;
};
