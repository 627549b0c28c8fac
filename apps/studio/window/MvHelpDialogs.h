// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QCoreApplication>
#include <QList>

class QAction;
class QDialog;
class QWidget;

/// What the help menu shows.
class MvHelpDialogs
{
    Q_DECLARE_TR_FUNCTIONS(MvHelpDialogs)

public:
    /// The illustrated guide, and a table of the actions that have shortcuts and of the keys of the page. Opened;
    /// deletes itself.
    static QDialog *openShortcuts(const QList<QAction *> &actions, QWidget *parent);
    static QDialog *openAbout(QWidget *parent);
};
