// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QObject>

class QAction;
class QWidget;

/// Undo and redo, with what they take back or do again in their texts: "Rückgängig: Farbe ändern".
class MvUndoActions : public QObject
{
    Q_OBJECT

public:
    /// The parent owns the actions.
    explicit MvUndoActions(QWidget *parent);

    QAction *undoAction() const { return m_undo; }
    QAction *redoAction() const { return m_redo; }

private:
    void update();

    QAction *m_undo;
    QAction *m_redo;
};
