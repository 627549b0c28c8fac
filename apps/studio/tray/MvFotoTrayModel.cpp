// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tray/MvFotoTrayModel.h"

#include "common/MvDraggedFotos.h"

#include "MvProject/MvProject.h"

#include <QDir>
#include <QFileInfo>
#include <QMimeData>

#include <algorithm>

using namespace Qt::StringLiterals;

MvFotoTrayModel::MvFotoTrayModel(const MvProject *project, QObject *parent)
    : QAbstractListModel(parent)
    , m_project(project)
{
    connect(project, &MvProject::documentChanged, this, &MvFotoTrayModel::update);
    connect(project, &MvProject::documentReplaced, this, &MvFotoTrayModel::update);
    update();
}

/// The list is laid out anew only when there are others; marks of use follow quietly.
void MvFotoTrayModel::update()
{
    const MvCalendarDocument &document = m_project->document();
    const QHash<QString, int> uses = document.fotoUses();
    QStringList paths = document.fotoPool().paths();
    QStringList others;
    for (auto it = uses.keyBegin(); it != uses.keyEnd(); ++it)
        if (!document.fotoPool().contains(*it))
            others.append(*it);
    std::sort(others.begin(), others.end());
    paths += others;
    m_used = int(std::count_if(paths.begin(), paths.end(), [&](const QString &path) { return uses.value(path) > 0; }));
    if (m_isUnusedOnly)
        paths.removeIf([&uses](const QString &path) { return uses.value(path) > 0; });
    if (paths != m_paths) {
        beginResetModel();
        m_paths = paths;
        m_uses = uses;
        endResetModel();
        return;
    }
    if (uses == m_uses || paths.isEmpty())
        return;
    m_uses = uses;
    Q_EMIT dataChanged(index(0), index(rowCount() - 1), {UsesRole, Qt::AccessibleTextRole, Qt::ToolTipRole});
}

void MvFotoTrayModel::setUnusedOnly(bool only)
{
    m_isUnusedOnly = only;
    update();
}

int MvFotoTrayModel::usedCount() const
{
    return m_used;
}

int MvFotoTrayModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_paths.size());
}

QVariant MvFotoTrayModel::data(const QModelIndex &index, int role) const
{
    const QString path = m_paths.value(index.row());
    if (path.isEmpty())
        return {};
    const int uses = m_uses.value(path);
    const QString name = QFileInfo(path).fileName();
    switch (role) {
    case Qt::DisplayRole:
        return name;
    case Qt::ToolTipRole:
        return QDir::toNativeSeparators(path);
    case Qt::AccessibleTextRole:
        return uses > 0 ? tr("%1, %n-mal auf den Seiten", nullptr, uses).arg(name) : tr("%1, noch unbenutzt").arg(name);
    case PathRole:
        return path;
    case UsesRole:
        return uses;
    case IsInPoolRole:
        return m_project->document().fotoPool().contains(path);
    default:
        return {};
    }
}

Qt::ItemFlags MvFotoTrayModel::flags(const QModelIndex &index) const
{
    return QAbstractListModel::flags(index) | (index.isValid() ? Qt::ItemIsDragEnabled : Qt::NoItemFlags);
}

QStringList MvFotoTrayModel::mimeTypes() const
{
    return {u"text/uri-list"_s};
}

QMimeData *MvFotoTrayModel::mimeData(const QModelIndexList &indexes) const
{
    QStringList paths;
    for (const QModelIndex &index : indexes)
        paths.append(path(index.row()));
    return MvDraggedFotos::createData(paths);
}
