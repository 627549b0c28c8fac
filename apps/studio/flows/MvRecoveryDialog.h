// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvProject/MvProjectRecovery.h"

#include <QDialog>

class QPushButton;
class QTreeWidget;

/// What was not saved when the program ended unexpectedly: to be opened or discarded.
class MvRecoveryDialog : public QDialog
{
    Q_OBJECT

public:
    MvRecoveryDialog(const QList<MvProjectRecovery::Entry> &entries, QWidget *parent);

Q_SIGNALS:
    /// The user wants to go on with it; the dialog is closed then.
    void openRequested(const MvProjectRecovery::Entry &entry);

private:
    void openCurrent();
    void discardCurrent();
    void updateButtons();

    QList<MvProjectRecovery::Entry> m_entries; // in the order of the rows
    QTreeWidget *m_list;
    QPushButton *m_open;
    QPushButton *m_discard;
};
