// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "pages/MvPageSelection.h"

#include <QList>
#include <QString>

class QWidget;

/// What the inspector needs to show a panel.
struct MvStudioPanel
{
    QString objectName;
    QString title;
    QWidget *widget = nullptr;
    /// Shown while something of these kinds is chosen.
    QList<MvPageSelection::Kind> about = {MvPageSelection::Kind::Calendar};
    bool hasScope = true; // what it changes, it changes on all pages or on one
};
