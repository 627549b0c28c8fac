// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QHash>
#include <QList>
#include <QObject>

class QAction;

/// The actions of the window by what they do, each with icon, status tip, shortcut and object name.
class MvStudioActions : public QObject
{
    Q_OBJECT

public:
    enum Id {
        New,
        Open,
        Save,
        SaveAs,
        ExportPdf,
        ExportPng,
        Print,
        FindFotos,
        ImportBirthdays,
        ImportDates,
        Quit,
        Theme,
        Template,
        Layout,
        PageSetup,
        Groups,
        AddFotos,
        AddFolder,
        Distribute,
        ChooseFoto,
        RemoveFoto,
        AddPage,
        AddCover,
        AddBack,
        DuplicatePage,
        MovePageUp,
        MovePageDown,
        RemovePage,
        NextElement,
        AddFotoFrame,
        AddTextFrame,
        AddSmallMonth,
        DuplicateFrame,
        RemoveFrame,
        FrameToFront,
        FrameToBack,
        PlaceFrame,
        FreeFrames,
        PrintCheck,
        PrintMarks,
        Settings,
        ZoomIn,
        ZoomOut,
        ZoomFit,
        Zoom100,
        FullScreen,
        Welcome,
        NextPage,
        PreviousPage,
        FirstPage,
        LastPage,
        Shortcuts,
        About,
    };

    /// The parent owns the actions, and their shortcuts hold in its window.
    explicit MvStudioActions(QWidget *parent);

    QAction *action(Id id) const { return m_actions.value(id); }
    /// In the order of the menus.
    QList<QAction *> actions() const { return m_inOrder; }

    /// Sees to it that the letters of shortcuts reach them: text fields would take some for keys of their own.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QHash<int, QAction *> m_actions;
    QList<QAction *> m_inOrder;
};
