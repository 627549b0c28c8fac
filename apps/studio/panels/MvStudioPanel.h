// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QString>

class QWidget;

/// What a window needs to show a panel in a dock.
struct MvStudioPanel
{
    QString objectName;
    QString title;
    QString iconName; // for MvIconRegistry
    QWidget *widget = nullptr;
};
