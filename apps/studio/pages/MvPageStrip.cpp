// SPDX-License-Identifier: LGPL-2.1-or-later
#include "pages/MvPageStrip.h"

#include "common/MvDraggedFotos.h"
#include "common/MvIdleImages.h"
#include "pages/MvPageFoto.h"
#include "pages/MvPageStripDelegate.h"
#include "pages/MvPageStripModel.h"
#include "pages/MvPageThumbnail.h"
#include "pages/MvScreenFotos.h"

#include "MvCalendar/MvCalendarEventRegistry.h"
#include "MvCalendar/MvRenderingSources.h"
#include "MvCore/MvDiskAccessRequest.h"
#include "MvFoto/MvFotoPass.h"
#include "MvProject/MvProject.h"

#include <QDragEnterEvent>
#include <QFileInfo>
#include <QMimeData>
#include <QScrollBar>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int changeDelay = 150; // milliseconds without a further change before thumbnails follow
constexpr int entriesDelay = 300;
constexpr int smallestWidth = 72; // of a thumbnail, logical pixels
constexpr int largestWidth = 220;
constexpr int usualWidth = 132;
constexpr double largestProportion = 1.5; // height to width: thin pages do not fill the strip alone

} // namespace

MvPageStrip::MvPageStrip(MvProject *project, QWidget *parent)
    : QListView(parent)
    , m_project(project)
    , m_images(new MvIdleImages([this](int page) { return makeThumbnail(page); }, this))
    , m_fotos(new MvScreenFotos(MvFotoService::Urgency::Background, this))
    , m_entryFotos(new MvFotoPages(MvFotoService::Urgency::Background, this))
    , m_model(new MvPageStripModel(project, m_images, this))
    , m_delegate(new MvPageStripDelegate(this))
{
    setObjectName(u"pageStrip"_s);
    setAccessibleName(tr("Seiten"));
    setFrameShape(QFrame::NoFrame);
    setModel(m_model);
    setItemDelegate(m_delegate);
    setUniformItemSizes(true);
    setMouseTracking(true);
    setEditTriggers(NoEditTriggers);
    setSelectionMode(SingleSelection);
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn); // or its coming would change the width that made it come
    setAcceptDrops(true);
    setDragEnabled(true);
    setDefaultDropAction(Qt::MoveAction);
    m_model->setFotos(m_fotos);
    m_images->setPaused(true); // until somebody sees the strip
    connect(m_images, &MvIdleImages::imageReady, m_model, &MvPageStripModel::updateRow);
    connect(m_fotos, &MvScreenFotos::loaded, this, &MvPageStrip::onFotoLoaded);
    connect(m_entryFotos, &MvFotoPages::arrived, this, [this](int page) { m_images->invalidate(page); });
    connect(project, &MvProject::pageChanged, this, [this](int page) {
        m_images->invalidate(page, changeDelay);
        m_model->updateRow(page);
    });
    connect(project, &MvProject::pagesReset, this, &MvPageStrip::onPagesReset);
    connect(project, &MvProject::documentReplaced, this, [this] {
        m_images->forget();
        m_fotos->clear();
        onPagesReset();
        setCurrentPage(0);
    });
    connect(&project->session().entries(), &MvCalendarEventRegistry::eventsChanged, this,
            [this] { m_images->invalidateAll(entriesDelay); });
    onPagesReset();
    setCurrentPage(0);
}

MvPageStrip::~MvPageStrip() = default;

int MvPageStrip::currentPage() const
{
    return currentIndex().row();
}

QImage MvPageStrip::thumbnail(int page) const
{
    return m_images->image(page);
}

bool MvPageStrip::isComplete() const
{
    return m_images->isComplete();
}

QSize MvPageStrip::sizeHint() const
{
    const int width = usualWidth + 2 * MvPageStripDelegate::margin + verticalScrollBar()->sizeHint().width();
    return {width, QListView::sizeHint().height()};
}

void MvPageStrip::onPagesReset()
{
    const int page = std::max(0, currentPage());
    m_isMarking = true;
    m_images->reset(int(m_project->document().pages().size()));
    m_model->reset();
    m_isMarking = false;
    keepNamesWhole();
    adaptToWidth();
    setCurrentPage(std::min(page, m_model->rowCount() - 1));
}

void MvPageStrip::setCurrentPage(int page)
{
    m_isMarking = true;
    setCurrentIndex(m_model->index(page));
    m_isMarking = false;
    preferVisible();
}

void MvPageStrip::currentChanged(const QModelIndex &current, const QModelIndex &previous)
{
    QListView::currentChanged(current, previous);
    if (!m_isMarking && current.isValid())
        Q_EMIT pageActivated(current.row());
}

/// Short names of pages, as they stand below the current one, have room in the narrowest strip.
void MvPageStrip::keepNamesWhole()
{
    QFont bold = font();
    bold.setBold(true);
    int width = smallestWidth;
    for (int page = 0; page < m_model->rowCount(); ++page) {
        const QString name = m_model->index(page).data().toString();
        width = qMax(width, qMin(QFontMetrics(bold).horizontalAdvance(name), usualWidth));
    }
    setMinimumWidth(width + 2 * MvPageStripDelegate::margin + verticalScrollBar()->sizeHint().width());
}

/// A thumbnail as wide as the strip allows, of the page's proportions.
void MvPageStrip::adaptToWidth()
{
    const QSizeF page = m_project->document().format().trimSize();
    const double proportion = page.isEmpty() ? 1.0 : page.height() / page.width();
    const int room = std::clamp(viewport()->width() - 2 * MvPageStripDelegate::margin, smallestWidth, largestWidth);
    QSize size(room, qRound(room * proportion));
    if (proportion > largestProportion)
        size = QSize(qRound(room * largestProportion / proportion), qRound(room * largestProportion));
    if (size == m_thumbnailSize)
        return;
    m_thumbnailSize = size;
    m_delegate->setThumbnailSize(size);
    m_images->invalidateAll(changeDelay);
    scheduleDelayedItemsLayout();
}

/// The current page's thumbnail comes first, then those in sight.
void MvPageStrip::preferVisible()
{
    QList<int> pages = {currentPage()};
    const QModelIndex first = indexAt(viewport()->rect().center() - QPoint(0, viewport()->height() / 2 - 1));
    for (int row = std::max(0, first.row()); row < m_model->rowCount(); ++row) {
        if (!visualRect(m_model->index(row)).intersects(viewport()->rect()))
            break;
        pages.append(row);
    }
    m_images->prefer(pages);
}

QImage MvPageStrip::makeThumbnail(int page)
{
    const MvCalendarDocument &document = m_project->document();
    if (page >= document.pages().size())
        return {};
    MvFotoPass fotos(*m_entryFotos, page);
    MvRenderingSources sources;
    sources.fotos = &fotos;
    return MvPageThumbnail::make(document.pages().at(page), document.format(), document.context(), m_thumbnailSize,
                                 devicePixelRatioF(), m_fotos, sources);
}

void MvPageStrip::onFotoLoaded(const QString &path)
{
    const QList<MvCalendarPage> &pages = m_project->document().pages();
    for (int page = 0; page < pages.size(); ++page) {
        if (!pages.at(page).fotoPaths().contains(path))
            continue;
        m_images->invalidate(page);
        m_model->updateRow(page);
    }
}

void MvPageStrip::resizeEvent(QResizeEvent *event)
{
    QListView::resizeEvent(event);
    adaptToWidth();
    preferVisible();
}

void MvPageStrip::scrollContentsBy(int dx, int dy)
{
    QListView::scrollContentsBy(dx, dy);
    preferVisible();
}

void MvPageStrip::showEvent(QShowEvent *event)
{
    QListView::showEvent(event);
    preferVisible();
    m_images->setPaused(false);
}

void MvPageStrip::hideEvent(QHideEvent *event)
{
    QListView::hideEvent(event);
    m_images->setPaused(true);
}

bool MvPageStrip::event(QEvent *event)
{
    if (event->type() == QEvent::ScreenChangeInternal)
        m_images->invalidateAll(changeDelay); // another screen may have smaller pixels
    return QListView::event(event);
}

// A photo that is dropped on a thumbnail goes to that page, a page to its place.

void MvPageStrip::dragEnterEvent(QDragEnterEvent *event)
{
    event->setAccepted(event->mimeData()->hasFormat(MvPageStripModel::pageFormat) ||
                       MvDraggedFotos::areIn(event->mimeData()));
}

void MvPageStrip::dragMoveEvent(QDragMoveEvent *event)
{
    QListView::dragMoveEvent(event); // scrolls near the ends
    const QModelIndex index = indexAt(event->position().toPoint());
    event->setAccepted(index.isValid());
    m_isMarking = true; // shows the target without turning to the page
    selectionModel()->select(index, QItemSelectionModel::ClearAndSelect);
    m_isMarking = false;
}

void MvPageStrip::dragLeaveEvent(QDragLeaveEvent *event)
{
    QListView::dragLeaveEvent(event);
    selectionModel()->select(currentIndex(), QItemSelectionModel::ClearAndSelect);
}

void MvPageStrip::dropEvent(QDropEvent *event)
{
    stopAutoScroll();
    setState(NoState);
    const int page = indexAt(event->position().toPoint()).row();
    selectionModel()->select(currentIndex(), QItemSelectionModel::ClearAndSelect);
    if (page < 0)
        return;
    event->acceptProposedAction();
    const QByteArray moved = event->mimeData()->data(MvPageStripModel::pageFormat);
    if (moved.isEmpty())
        takeFotos(event, page);
    else if (moved.toInt() != page)
        Q_EMIT moveRequested(moved.toInt(), page);
}

void MvPageStrip::takeFotos(const QDropEvent *event, int page)
{
    const MvCalendarDocument &document = m_project->document();
    const int element = MvPageFoto::frameForNew(document.pages().at(page), document.format());
    const QStringList paths = MvDraggedFotos::paths(event->mimeData());
    const auto frame = MvDraggedFotos::frame(event->mimeData());
    if (frame) {
        MvCalendarDocument changed = document;
        if (changed.swapFotos({frame->first, frame->second}, {page, element}))
            m_project->change(changed, tr("Fotos tauschen"));
    } else if (paths.size() == 1 && !QFileInfo(paths.constFirst()).isDir() && element >= 0) {
        MvPageFoto::set(m_project, {page, element}, paths.constFirst(), this, [this](const QString &error) {
            if (!error.isEmpty())
                MvDiskAccessRequest::instance().takeFotosFailed({error}, this);
        });
    } else {
        Q_EMIT fotosDropped(paths, page, element);
    }
}
