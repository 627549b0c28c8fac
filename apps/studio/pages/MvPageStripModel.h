// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QAbstractListModel>
#include <QTimer>

class MvIdleImages;
class MvProject;
class MvScreenFotos;

/// The pages of the open project: their months, and the thumbnails that there are.
class MvPageStripModel : public QAbstractListModel
{
    Q_OBJECT

public:
    enum Role {
        ResolutionRole = Qt::UserRole, ///< pixels per inch of the page's coarsest photo; 0 when nothing is known
        DeviatesRole,                  ///< it does not look like most pages of its kind
    };
    /// Of a page that is dragged: its number.
    static const QString pageFormat;

    /// Neither is owned.
    MvPageStripModel(const MvProject *project, const MvIdleImages *images, QObject *parent = nullptr);

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;

    /// What knows the sizes of photos; not owned.
    void setFotos(MvScreenFotos *fotos) { m_fotos = fotos; }
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    QMimeData *mimeData(const QModelIndexList &indexes) const override;
    QStringList mimeTypes() const override;
    Qt::DropActions supportedDragActions() const override { return Qt::MoveAction; }

    /// Pages came or went.
    void reset();
    void updateRow(int row);

private:
    QString describe(int page) const;
    bool deviates(int page) const;
    void compareAgain();
    double resolution(int page) const;

    const MvProject *m_project;
    const MvIdleImages *m_images;
    MvScreenFotos *m_fotos = nullptr;
    mutable QList<bool> m_deviating; // empty: to be looked at
    QTimer m_later;
};
