// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QCheckBox>

class MvProject;

/// Whether what is changed in the calendar's entries is changed in the user's own list, too. Remembered; all switches
/// show the same.
class MvOwnEntriesSwitch : public QCheckBox
{
    Q_OBJECT

public:
    /// The project is not owned.
    MvOwnEntriesSwitch(MvProject *project, QWidget *parent);
};
