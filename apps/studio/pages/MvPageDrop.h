// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QDate>
#include <QObject>
#include <QPointF>
#include <QStringList>
#include <QTimer>

class MvPageDropTarget;
class MvPageItem;
class MvProject;
class QDropEvent;

/// Where photos that are dragged over the page will go, and that it is shown: into the frame under the mouse, else to
/// the page; to a day only when the mouse has rested on it for a moment, or with the shift key.
class MvPageDrop : public QObject
{
    Q_OBJECT

public:
    static constexpr int restTime = 900; // milliseconds

    struct Target
    {
        QDate date;       // valid: the day's entry
        int element = -1; // a frame for photos; -1 for no frame
    };

    /// Nothing is owned.
    MvPageDrop(MvProject *project, MvPageItem *item, QObject *parent);

    /// False when there is nothing in it that the page could take.
    bool enter(const QDropEvent *event, const QPointF &onPage);
    void move(const QDropEvent *event, const QPointF &onPage);
    void leave();
    bool isActive() const { return !m_paths.isEmpty(); }
    /// What is dragged: files and folders.
    const QStringList &paths() const { return m_paths; }
    Target target() const { return m_target; }

private:
    void show();
    void rest();
    QString textFor(int element) const;

    MvProject *m_project;
    MvPageItem *m_item;
    MvPageDropTarget *m_shown;
    QTimer m_resting;
    QStringList m_paths;
    QString m_first; // the first photo
    QPointF m_at;
    QDate m_restedOn;
    Target m_target;
};
