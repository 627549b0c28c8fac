// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "panels/MvOwnColors.h"

#include "MvCalendar/MvUserColorSchemata.h"

#include <QWidget>

#include <functional>

class MvColorSchemaPicker;
class MvUndoController;
class QMenu;
class QPushButton;
class QToolButton;

/// The colour schemas to choose from, and what can be done with them: keep own colours for other calendars, rename and
/// delete what was kept, hide, show, go back to what is shipped. That concerns the user, not the document: it is saved
/// at once and no undo step; what deletes asks first.
class MvColorSchemaShelf : public QWidget
{
    Q_OBJECT

public:
    /// Colours that were tried are offered as long as the steps with them can be undone.
    MvColorSchemaShelf(const MvUndoController &undo, QWidget *parent);

    /// Marks the current page's schema. Those of the pages that are not registered are offered as own colours.
    void showSchema(const MvCalendariumColorSchema &current, const QList<MvCalendariumColorSchema> &ofPages);

public Q_SLOTS:
    /// The project is saved: own colours that it does not have are given up.
    void forgetUnusedColors();
    /// Another project was opened.
    void forgetOwnColors();

Q_SIGNALS:
    void colorSchemaChosen(const MvCalendariumColorSchema &schema);
    /// The registry has others, or others have been tried: what is shown is to be shown again.
    void schemataChanged();

private:
    QPushButton *createKeepButton();
    QToolButton *createManageButton();
    void reload();
    void fillMenu(QMenu *menu, int row);
    void addHiddenMenu(QMenu *menu);
    void openContextMenu(const QPoint &position);

    void askToKeep(const MvCalendariumColorSchema &schema);
    void askToRename(const MvCalendariumColorSchemaID &id);
    void askToDelete(const MvCalendariumColorSchemaID &id);
    void askToReset();
    void askBefore(const QString &name, const QString &text, const QString &hint, const QString &doIt,
                   const std::function<MvUserColorSchemata::Result()> &task);
    void hideSchema(const MvCalendariumColorSchemaID &id, bool hide);
    void finish(const MvUserColorSchemata::Result &result);

    MvColorSchemaPicker *m_picker;
    QPushButton *m_keep;
    QToolButton *m_manage;
    MvCalendariumColorSchema m_current;
    MvOwnColors m_own;
};
