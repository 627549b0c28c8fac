// SPDX-License-Identifier: LGPL-2.1-or-later
#include "pages/MvPageStripModel.h"

#include "common/MvIdleImages.h"
#include "pages/MvFrameNotices.h"
#include "pages/MvPageDeviation.h"

#include "MvProject/MvPrintCheck.h"
#include "MvProject/MvProject.h"

#include <QMimeData>

#include <cmath>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr int deviationDelay = 150; // milliseconds without changes

} // namespace

const QString MvPageStripModel::pageFormat = u"application/x-mvcalendar-page"_s;

MvPageStripModel::MvPageStripModel(const MvProject *project, const MvIdleImages *images, QObject *parent)
    : QAbstractListModel(parent)
    , m_project(project)
    , m_images(images)
{
    m_later.setSingleShot(true);
    m_later.setInterval(deviationDelay);
    connect(project, &MvProject::documentChanged, &m_later, qOverload<>(&QTimer::start));
    connect(&m_later, &QTimer::timeout, this, &MvPageStripModel::compareAgain);
}

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

bool MvPageStripModel::deviates(int page) const
{
    if (m_deviating.size() != m_project->document().pages().size())
        m_deviating = MvPageDeviation::of(m_project->document());
    return m_deviating.value(page);
}

/// One page decides what the others are like.
void MvPageStripModel::compareAgain()
{
    const QList<bool> before = std::exchange(m_deviating, {});
    for (int page = 0; page < rowCount(); ++page)
        if (page < before.size() && deviates(page) != before.at(page))
            updateRow(page);
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
    m_deviating.clear();
    beginResetModel();
    endResetModel();
}

void MvPageStripModel::updateRow(int row)
{
    const QModelIndex changed = index(row);
    Q_EMIT dataChanged(changed, changed);
}
