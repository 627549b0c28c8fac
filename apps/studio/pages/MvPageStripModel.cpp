// SPDX-License-Identifier: LGPL-2.1-or-later
#include "pages/MvPageStripModel.h"

#include "common/MvIdleImages.h"

#include "MvProject/MvCalendarTitle.h"
#include "MvProject/MvProject.h"

using namespace Qt::StringLiterals;

MvPageStripModel::MvPageStripModel(const MvProject *project, const MvIdleImages *images, QObject *parent)
    : QAbstractListModel(parent)
    , m_project(project)
    , m_images(images)
{}

int MvPageStripModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_images->count();
}

QVariant MvPageStripModel::data(const QModelIndex &index, int role) const
{
    const QList<MvCalendarPage> &pages = m_project->document().pages();
    if (!index.isValid() || index.row() >= pages.size())
        return {};
    switch (role) {
    case Qt::DisplayRole:
        return MvCalendarTitle::ofPage(pages.at(index.row()));
    case Qt::DecorationRole:
        return m_images->image(index.row());
    case Qt::AccessibleTextRole:
    case Qt::ToolTipRole:
        return tr("Seite %1: %2").arg(index.row() + 1).arg(MvCalendarTitle::ofPage(pages.at(index.row())));
    default:
        return {};
    }
}

void MvPageStripModel::reset()
{
    beginResetModel();
    endResetModel();
}

void MvPageStripModel::updateRow(int row)
{
    const QModelIndex changed = index(row);
    Q_EMIT dataChanged(changed, changed);
}
