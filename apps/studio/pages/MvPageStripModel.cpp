// SPDX-License-Identifier: LGPL-2.1-or-later
#include "pages/MvPageStripModel.h"

#include "common/MvIdleImages.h"
#include "pages/MvFrameNotices.h"

#include "MvProject/MvPrintCheck.h"
#include "MvProject/MvProject.h"

#include <QMimeData>

#include <cmath>

using namespace Qt::StringLiterals;

const QString MvPageStripModel::pageFormat = u"application/x-mvcalendar-page"_s;

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
        return MvPrintCheck::pageName(m_project->document(), index.row());
    case Qt::DecorationRole:
        return m_images->image(index.row());
    case Qt::AccessibleTextRole:
    case Qt::ToolTipRole:
        return describe(index.row());
    case ResolutionRole:
        return resolution(index.row());
    case DeviatesRole:
        return deviates(index.row());
    default:
        return {};
    }
}

QString MvPageStripModel::describe(int page) const
{
    QString text = tr("Seite %1: %2").arg(page + 1).arg(MvPrintCheck::pageName(m_project->document(), page));
    if (deviates(page))
        text += u'\n' + tr("Sieht anders aus als die übrigen Seiten");
    if (const double found = resolution(page); found > 0.0 && found < MvFrameNotices::discreetBelow)
        text += u'\n' + tr("Ein Foto druckt grob, mit %1 Bildpunkten je Zoll").arg(std::lround(found));
    return text;
}

double MvPageStripModel::resolution(int page) const
{
    const MvCalendarDocument &document = m_project->document();
    return m_fotos ? MvFrameNotices::coarsest(document.pages().at(page).elementsOn(document.format()), m_fotos) : 0.0;
}

/// Themes change colours by the month and templates by turns: what counts is the layout, and where a theme leaves them
/// alone, the photo's place.
bool MvPageStripModel::deviates(int page) const
{
    const MvCalendarDocument &document = m_project->document();
    const MvCalendarPage &own = document.pages().at(page);
    if (own.kind() != MvPageKind::Month)
        return false;
    const auto isAlike = [&own](const MvCalendarPage &other) {
        const bool isSamePlace = !own.isSimple() || !other.isSimple() || !own.fotoFrame().isValid() ||
                                 !other.fotoFrame().isValid() ||
                                 (own.fotoFrame().placement() == other.fotoFrame().placement() &&
                                  own.fotoFrame().share() == other.fotoFrame().share());
        return isSamePlace && own.isSimple() == other.isSimple() &&
               own.appearance().layoutSchema().ID() == other.appearance().layoutSchema().ID() &&
               own.appearance().fontSettings() == other.appearance().fontSettings();
    };
    int months = 0;
    int alike = 0;
    for (const MvCalendarPage &other : document.pages()) {
        if (other.kind() != MvPageKind::Month)
            continue;
        ++months;
        alike += isAlike(other) ? 1 : 0;
    }
    return 2 * alike < months;
}

/// Months stay where they are.
Qt::ItemFlags MvPageStripModel::flags(const QModelIndex &index) const
{
    Qt::ItemFlags flags = QAbstractListModel::flags(index);
    flags.setFlag(Qt::ItemIsDragEnabled, index.isValid() && !m_project->document().isMonthPage(index.row()));
    flags.setFlag(Qt::ItemIsDropEnabled, index.isValid());
    return flags;
}

QStringList MvPageStripModel::mimeTypes() const
{
    return {pageFormat};
}

QMimeData *MvPageStripModel::mimeData(const QModelIndexList &indexes) const
{
    auto *data = new QMimeData;
    data->setData(pageFormat, QByteArray::number(indexes.value(0).row()));
    return data;
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
