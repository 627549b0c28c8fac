// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCore/MvSingleton.h"
#include "MvGUIWidgets/mvguiwidgets_export.h"

#include <QCoreApplication>
#include <QString>

class MvActionRegistry;
class QAction;
class QObject;
extern template class MVGUIWIDGETS_EXPORT MvSingleton<MvActionRegistry>;

/// Texts and icons of actions that appear in several menus, by their type.
class MVGUIWIDGETS_EXPORT MvActionRegistry : public MvSingleton<MvActionRegistry>
{
    Q_DECLARE_TR_FUNCTIONS(MvActionRegistry)

public:
    enum ActionType {
        EditCalendarEvent = 622,
        DeleteCalendarEvent = 623,
    };

    /// A new action with the type's text and icon, for one menu; of an unknown type: with neither. Belongs to the
    /// parent, or to the caller.
    QAction *unregisteredAction(int type, QObject *parent = nullptr) const;
};
