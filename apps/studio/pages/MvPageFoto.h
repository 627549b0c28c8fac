// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvProject/MvFotoFrame.h"

#include <QObject>

#include <functional>

class MvPageItem;
class MvProject;
class QMenu;
class QMimeData;
class QWidget;

/// What can be done with the photo of the shown page, each as one undo step.
class MvPageFoto : public QObject
{
    Q_OBJECT

public:
    /// The widget is the parent of dialogs and of this object.
    MvPageFoto(MvProject *project, MvPageItem *item, QWidget *parent);

    /// Asks for a file without blocking and makes it the page's photo.
    void choose();
    /// Makes a file the photo; where there is one already, it takes its place. Files that are no photos change nothing
    /// and say so.
    void set(const QString &path);
    /// The same for any page. Tells how it went, at once for a small photo, after decoding in the background for a
    /// large one, unless the receiver is gone by then: an empty text, or why the page keeps what it has.
    static void set(MvProject *project, int page, const QString &path, QObject *receiver,
                    const std::function<void(const QString &error)> &tell);
    void remove();
    /// The actions for the page's photo, for menus.
    void addActions(QMenu *menu);

    /// The first photo among the files that are dragged; empty when there is none.
    static QString fotoIn(const QMimeData *data);
    /// A frame for a new photo: at the top, or beside the calendarium when a page that lies gets an upright photo.
    static MvFotoFrame frameFor(const QString &path, const MvPageFormat &format);

Q_SIGNALS:
    void message(const QString &text);

private:
    void addPlacements(QMenu *menu);
    void addSizes(QMenu *menu);
    void change(const QString &text, const std::function<void(MvFotoFrame &)> &edit);
    static void change(MvProject *project, int page, const QString &text,
                       const std::function<void(MvFotoFrame &)> &edit);

    MvProject *m_project;
    MvPageItem *m_item;
    QWidget *m_parent;
};
