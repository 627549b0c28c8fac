// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QAbstractListModel>
#include <QHash>
#include <QStringList>

class MvProject;

/// The photos of the open calendar: those of its pool in their order, then those that are on pages only.
class MvFotoTrayModel : public QAbstractListModel
{
    Q_OBJECT

public:
    enum Role {
        PathRole = Qt::UserRole,
        UsesRole, ///< on how many frames it is
        IsInPoolRole,
    };

    /// The project is not owned.
    explicit MvFotoTrayModel(const MvProject *project, QObject *parent = nullptr);

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    QMimeData *mimeData(const QModelIndexList &indexes) const override;
    QStringList mimeTypes() const override;
    Qt::DropActions supportedDragActions() const override { return Qt::CopyAction; }

    QString path(int row) const { return m_paths.value(row); }
    int usedCount() const;
    /// Leaves out what is on a page already.
    void setUnusedOnly(bool only);

private:
    void update();

    const MvProject *m_project;
    QStringList m_paths;
    QHash<QString, int> m_uses;
    int m_used = 0;
    bool m_isUnusedOnly = false;
};
