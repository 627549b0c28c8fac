// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvProject/MvCalendarDocument.h"

#include <QObject>

#include <functional>

class MvPageItem;
class MvPageSelection;
class MvProject;
class QMenu;
class QWidget;

/// What can be done with the photos of the shown page, each as one undo step. The photo that is meant is the chosen
/// one, else the page's first; for a new one the first empty frame.
class MvPageFoto : public QObject
{
    Q_OBJECT

public:
    using FrameId = MvCalendarDocument::FrameId;

    /// The widget is the parent of dialogs and of this object.
    MvPageFoto(MvProject *project, MvPageItem *item, MvPageSelection *selection, QWidget *parent);

    /// Asks for a file without blocking and puts it into the frame that is meant.
    void choose();
    /// The same for a certain frame of the shown page.
    void chooseFor(int element);
    /// Puts a file into the frame that is meant; where there is a photo already, it takes its place. Files that are no
    /// photos change nothing and say so.
    void set(const QString &path);
    void set(int element, const QString &path);
    /// The same for any frame. Tells how it went, at once for a small photo, after decoding in the background for a
    /// large one, unless the receiver is gone by then: an empty text, or why the page keeps what it has.
    static void set(MvProject *project, const FrameId &frame, const QString &path, QObject *receiver,
                    const std::function<void(const QString &error)> &tell);
    void remove();
    /// Whether there is a photo that is meant.
    bool hasFoto() const { return frameOfFoto() >= 0; }
    /// The actions for the photo at an element, or the one that is meant for -1, for menus.
    void addActions(QMenu *menu, int element = -1);

    /// The frame of a page that a new photo goes into: the first empty one, else the first; -1 for none.
    static int frameForNew(const MvCalendarPage &page, const MvPageFormat &format);
    /// The photo's place on a page without a template: at the top, or beside the calendarium when a page that lies gets
    /// an upright photo.
    static MvFotoFrame frameFor(const QString &path, const MvPageFormat &format);

Q_SIGNALS:
    void message(const QString &text);

private:
    int frameOfFoto() const;
    void addPlacements(QMenu *menu);
    void addSizes(QMenu *menu);
    void changeFrame(const QString &text, const std::function<void(MvFotoFrame &)> &edit);
    void changeFoto(int element, const QString &text, const std::function<void(MvFotoElement &)> &edit);

    MvProject *m_project;
    MvPageItem *m_item;
    MvPageSelection *m_selection;
    QWidget *m_parent;
};
