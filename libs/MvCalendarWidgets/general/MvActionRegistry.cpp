// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvGUIWidgets/MvActionRegistry.h"

#include "MvGUIWidgets/MvIconRegistry.h"

#include <QAction>

using namespace Qt::StringLiterals;

template class MvSingleton<MvActionRegistry>;

QAction *MvActionRegistry::unregisteredAction(int type, QObject *parent) const
{
    auto *action = new QAction(parent);
    switch (type) {
    case EditCalendarEvent:
        action->setText(MvActionRegistry::tr("Eintrag bearbeiten…"));
        action->setIcon(MvIconRegistry::instance().icon(u"ico_common_edit"_s));
        break;
    case DeleteCalendarEvent:
        action->setText(MvActionRegistry::tr("Eintrag löschen"));
        action->setIcon(MvIconRegistry::instance().icon(u"ico_common_delete"_s));
        break;
    default:
        break;
    }
    return action;
}
