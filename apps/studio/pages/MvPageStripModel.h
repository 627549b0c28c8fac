// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QAbstractListModel>

class MvIdleImages;
class MvProject;

/// The pages of the open project: their months, and the thumbnails that there are.
class MvPageStripModel : public QAbstractListModel
{
    Q_OBJECT

public:
    /// Neither is owned.
    MvPageStripModel(const MvProject *project, const MvIdleImages *images, QObject *parent = nullptr);

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;

    /// Pages came or went.
    void reset();
    void updateRow(int row);

private:
    const MvProject *m_project;
    const MvIdleImages *m_images;
};
