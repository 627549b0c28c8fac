// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QDialog>
#include <QFileInfo>
#include <QList>

class QTreeWidget;

/// Lets the person choose among the earlier versions of their entries: when each was written, and how many it holds.
/// Deletes itself.
class MvRestoreEntriesDialog : public QDialog
{
    Q_OBJECT

public:
    /// Must not be empty.
    explicit MvRestoreEntriesDialog(const QList<QFileInfo> &backups, QWidget *parent = nullptr);

Q_SIGNALS:
    void restoreRequested(const QFileInfo &backup);

private:
    void addRow(const QFileInfo &backup);

    QList<QFileInfo> m_backups;
    QTreeWidget *m_list;
};
