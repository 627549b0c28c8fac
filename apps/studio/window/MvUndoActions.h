// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QObject>

class MvUndoController;
class QAction;
class QWidget;

/// Undo and redo, with what they take back or do again in their texts: "Rückgängig: Farbe ändern".
class MvUndoActions : public QObject
{
    Q_OBJECT

public:
    /// For the steps of the controller, which must outlive them. The parent owns the actions.
    MvUndoActions(MvUndoController &controller, QWidget *parent);

    QAction *undoAction() const { return m_undo; }
    QAction *redoAction() const { return m_redo; }

private:
    void update();

    const MvUndoController &m_controller;
    QAction *m_undo;
    QAction *m_redo;
};
