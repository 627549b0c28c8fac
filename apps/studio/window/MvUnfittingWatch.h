#pragma once

#include "MvCalendar/MvUnfittingText.h"

#include <QBasicTimer>
#include <QList>
#include <QObject>

class MvFotoStock;
class MvProject;

/// Knows which texts have no room on the pages of the open project. It looks at one page at a time, when the program
/// has nothing else to do, a while after the last change.
class MvUnfittingWatch : public QObject
{
    Q_OBJECT

public:
    struct Entry
    {
        int page = 0;
        MvUnfittingText text;

        bool operator==(const Entry &) const = default;
    };

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
        QList<MvUnfittingText> texts;
        bool isDue = true;
    };

    void invalidate(int page);
    void reset();

    MvProject *m_project;
    QList<Page> m_pages;
    MvFotoStock *m_entryPhotos;
    QBasicTimer m_timer;
    bool m_hasNews = false;
};
