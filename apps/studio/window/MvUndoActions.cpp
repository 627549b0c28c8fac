// SPDX-License-Identifier: LGPL-2.1-or-later
#include "window/MvUndoActions.h"

#include "MvCore/MvUndoController.h"
#include "MvGUIWidgets/MvIconRegistry.h"

#include <QAction>
#include <QWidget>

using namespace Qt::StringLiterals;

namespace {

QAction *createAction(const QString &objectName, const QString &icon, const QList<QKeySequence> &keys,
                      const QString &tip, QWidget *parent)
{
    auto *action = new QAction(MvIconRegistry::instance().icon(icon), {}, parent);
    action->setObjectName(objectName);
    action->setShortcuts(keys);
    action->setStatusTip(tip);
    return action;
}

QString withStep(const QString &what, const QString &step)
{
    return step.isEmpty() ? what : MvUndoActions::tr("%1: %2").arg(what, step);
}

} // namespace

MvUndoActions::MvUndoActions(MvUndoController &controller, QWidget *parent)
    : QObject(parent)
    , m_controller(controller)
    , m_undo(createAction(u"undo"_s, u"ico_studio_undo"_s, {QKeySequence(Qt::CTRL | Qt::Key_Z)},
                          tr("Den letzten Schritt zurücknehmen"), parent))
    , m_redo(createAction(u"redo"_s, u"ico_studio_redo"_s,
                          {QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z), QKeySequence(Qt::CTRL | Qt::Key_Y)},
                          tr("Den zurückgenommenen Schritt wieder tun"), parent))
{
    connect(m_undo, &QAction::triggered, this, [&controller] { controller.undo(); });
    connect(m_redo, &QAction::triggered, this, [&controller] { controller.redo(); });
    const QUndoStack *stack = controller.stack();
    connect(stack, &QUndoStack::indexChanged, this, &MvUndoActions::update);
    connect(stack, &QUndoStack::undoTextChanged, this, &MvUndoActions::update);
    connect(stack, &QUndoStack::redoTextChanged, this, &MvUndoActions::update);
    connect(stack, &QUndoStack::canUndoChanged, this, &MvUndoActions::update);
    connect(stack, &QUndoStack::canRedoChanged, this, &MvUndoActions::update);
    update();
}

void MvUndoActions::update()
{
    m_undo->setText(withStep(tr("&Rückgängig"), m_controller.undoName()));
    m_redo->setText(withStep(tr("&Wiederholen"), m_controller.redoName()));
    m_undo->setEnabled(m_controller.stack()->canUndo());
    m_redo->setEnabled(m_controller.stack()->canRedo());
    for (QAction *action : {m_undo, m_redo})
        action->setToolTip(
            u"%1 (%2)"_s.arg(action->text().remove(u'&'), action->shortcut().toString(QKeySequence::NativeText)));
}
