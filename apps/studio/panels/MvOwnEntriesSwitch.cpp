// SPDX-License-Identifier: LGPL-2.1-or-later
#include "panels/MvOwnEntriesSwitch.h"

#include "MvProject/MvProject.h"
#include "common/MvStudioSettings.h"

using namespace Qt::StringLiterals;

MvOwnEntriesSwitch::MvOwnEntriesSwitch(MvProject *project, QWidget *parent)
    : QCheckBox(tr("Auch in meine Einträge übernehmen"), parent)
{
    setObjectName(u"ownEntriesSwitch"_s);
    setToolTip(tr("Was Sie in diesem Kalender eintragen, ändern oder löschen, gilt auch für Ihre eigenen Einträge, aus "
                  "denen neue Kalender entstehen. „Laden…“ und „Alle löschen…“ betreffen nur diesen Kalender."));
    setChecked(project->doEntriesReachOwn());
    connect(project, &MvProject::entriesReachOwnChanged, this, &QCheckBox::setChecked);
    connect(this, &QCheckBox::clicked, project, [project](bool reach) {
        MvStudioSettings::setEntriesReachOwn(reach);
        project->setEntriesReachOwn(reach);
    });
}
