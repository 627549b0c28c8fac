// SPDX-License-Identifier: LGPL-2.1-or-later
#include "pages/MvPageStripModel.h"

#include "common/MvIdleImages.h"

#include "MvCore/MvApplicationLocale.h"
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
        return months(index.row());
    case Qt::DecorationRole:
        return m_images->image(index.row());
    case Qt::AccessibleTextRole:
    case Qt::ToolTipRole:
        return tr("Seite %1: %2").arg(index.row() + 1).arg(months(index.row()));
    default:
        return {};
    }
}

QString MvPageStripModel::months(int page) const
{
    const MvCalendarPage &shown = m_project->document().pages().at(page);
    const QLocale locale = MvApplicationLocale::instance().locale();
    const QDate first = shown.contentConfig().date();
    if (shown.monthCount() == 1)
        return locale.toString(first, u"MMMM yyyy"_s);
    const QDate last = first.addMonths(shown.monthCount() - 1);
    if (first.year() == last.year())
        return QString::number(first.year());
    return tr("%1 – %2").arg(locale.toString(first, u"MMM yyyy"_s), locale.toString(last, u"MMM yyyy"_s));
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
