// SPDX-License-Identifier: LGPL-2.1-or-later
#include "pages/MvPageItem.h"

#include "pages/MvFrameNotices.h"
#include "pages/MvScreenFotoSource.h"
#include "pages/MvScreenFotos.h"

#include "MvCalendar/MvCalendarEventRegistry.h"
#include "MvCalendar/MvCalendariumRenderer.h"
#include "MvCalendar/MvGraphicsItemCalendariumCell.h"
#include "MvCalendar/MvGraphicsItemCalendariumCellsManager.h"
#include "MvCalendar/MvRenderingSources.h"
#include "MvFoto/MvFotoPass.h"
#include "MvProject/MvProject.h"

#include <QImage>
#include <QPainter>
#include <QTimerEvent>

#include <algorithm>
#include <cmath>

namespace {

constexpr int shadowWidth = 44; // tenths of a millimetre
constexpr int shadowSteps = 16;
const QColor shadowColor(0, 0, 0, 4);

/// Translation in whole pixels; what is left of the transform decides how the pixels look.
QPoint takeWholePixels(QTransform *transform)
{
    const QPoint whole(int(std::floor(transform->dx())), int(std::floor(transform->dy())));
    *transform *= QTransform::fromTranslate(-whole.x(), -whole.y());
    return whole;
}

/// Photos that will be coarse in print are marked.
MvRenderingRule screenRule()
{
    return MvRenderingRule(MvRenderingRule::InteractiveScreen | MvRenderingRule::ShowQualityWarnings);
}

QRect pixelsOf(const QTransform &transform, const QRectF &rect)
{
    return transform.mapRect(rect).toAlignedRect();
}

QList<MvCalendariumElement> calendariaOf(const MvCalendarPage &page)
{
    QList<MvCalendariumElement> calendaria;
    for (const MvPageElement &element : page.elements()) {
        if (element.calendarium())
            calendaria.append(*element.calendarium());
    }
    return calendaria;
}

} // namespace

MvPageItem::MvPageItem(MvProject *project, QGraphicsItem *parent)
    : QGraphicsObject(parent)
    , m_project(project)
    , m_fotos(std::make_unique<MvScreenFotos>(MvFotoService::Urgency::Seen))
    , m_entryFotos(std::make_unique<MvFotoPages>(MvFotoService::Urgency::Seen))
    , m_cells(std::make_unique<MvGraphicsItemCalendariumCellsManager>(this, project->session()))
{
    connect(project, &MvProject::pageChanged, this, [this](int page) {
        if (page == m_page)
            refresh();
    });
    connect(project, &MvProject::pagesReset, this, &MvPageItem::refresh);
    connect(project, &MvProject::documentReplaced, this, [this] {
        m_fotos->clear();
        m_trial.reset();
        takePage(); // its size decides how large everything is shown
        refresh();
    });
    connect(&project->session().entries(), &MvCalendarEventRegistry::eventsChanged, this, &MvPageItem::refresh);
    connect(m_fotos.get(), &MvScreenFotos::loaded, this, &MvPageItem::discardCache);
    connect(m_entryFotos.get(), &MvFotoPages::arrived, this, &MvPageItem::refresh);
    m_cells->setMenuForOneEntry(false);
    refreshNow();
}

MvPageItem::~MvPageItem() = default;

void MvPageItem::setPage(int page)
{
    if (m_page == page)
        return;
    m_page = page;
    m_trial.reset();
    refresh();
}

void MvPageItem::setTrial(const std::optional<MvCalendarPage> &page)
{
    m_trial = page;
    refresh();
}

QRectF MvPageItem::fotoRect() const
{
    for (const MvPageElement &element : m_elements)
        if (element.foto() && !element.foto()->isEmpty())
            return element.rect() & m_pageRect;
    return {};
}

const MvFotoElement *MvPageItem::foto(int element) const
{
    return element >= 0 && element < m_elements.size() ? m_elements.at(element).foto() : nullptr;
}

QDate MvPageItem::dateAt(const QPointF &point) const
{
    for (auto it = m_dates.begin(); it != m_dates.end(); ++it) {
        if (it.value().contains(point))
            return it.key();
    }
    return {};
}

QList<QDate> MvPageItem::dates() const
{
    QList<QDate> dates = m_dates.keys();
    std::sort(dates.begin(), dates.end());
    return dates;
}

void MvPageItem::setPixelsPerUnit(double pixels)
{
    // in steps, so that zooming does not record for every factor
    const double needed = std::exp2(std::ceil(std::log2(std::max(pixels, 0.125))));
    if (needed <= m_pixelsPerUnit)
        return;
    m_pixelsPerUnit = needed;
    refresh();
}

void MvPageItem::refresh()
{
    m_timer.start(0, this);
}

void MvPageItem::timerEvent(QTimerEvent *event)
{
    if (event->timerId() == m_timer.timerId())
        refreshNow();
}

void MvPageItem::refreshNow()
{
    m_timer.stop();
    takePage();
    record();
    discardCache();
    Q_EMIT refreshed();
}

void MvPageItem::takePage()
{
    const MvCalendarDocument &document = m_project->document();
    const bool isThere = m_page >= 0 && m_page < document.pages().size();
    m_shown = m_trial ? *m_trial : isThere ? document.pages().at(m_page) : MvCalendarPage();
    const QRectF pageRect = isThere ? document.format().trimRect() : QRectF();
    if (pageRect != m_pageRect) {
        prepareGeometryChange();
        m_pageRect = pageRect;
    }
    m_elements = isThere ? m_shown.elementsOn(document.format()) : QList<MvPageElement>();
}

void MvPageItem::record()
{
    m_dates.clear();
    m_recording = {};
    if (m_pageRect.isEmpty())
        return;
    removeOutdatedCells();
    m_cells->setHolidayConfig(m_shown.contentConfig().holidayConfig());
    const auto listen = [this, isFirst = true](MvCalendariumRenderer &renderer) mutable {
        MvGraphicsItemCalendariumCellsManager *cells = m_cells.get();
        if (std::exchange(isFirst, false)) { // further calendaria of the page add their days
            connect(&renderer, &MvCalendariumRenderer::rectForDatesRestart, cells,
                    &MvGraphicsItemCalendariumCellsManager::resetRectsForMonth);
            connect(&renderer, &MvCalendariumRenderer::hasTitleLineMayHaveChanged, cells,
                    &MvGraphicsItemCalendariumCellsManager::resetRectsForTitleLine);
        }
        for (const auto signal : {&MvCalendariumRenderer::rectForDateFound, &MvCalendariumRenderer::roomForDateFound})
            connect(&renderer, signal, this, [this](const QDate &date, const QRectF &rect) { addDate(date, rect); });
    };
    const MvCalendarDocument &document = m_project->document();
    MvFotoPass fotos(*m_entryFotos);
    MvRenderingSources sources;
    sources.fotos = &fotos;
    m_recording = m_shown.record(document.format(), document.context(), listen, screenRule(), m_pixelsPerUnit, sources);
}

/// A day that several calendaria show is in the one where it is largest.
void MvPageItem::addDate(const QDate &date, const QRectF &rect)
{
    const QSizeF known = m_dates.value(date).size();
    if (known.width() * known.height() > rect.width() * rect.height())
        return;
    m_dates.insert(date, rect);
    m_cells->addRectForDate(date, rect);
}

/// The manager keeps the cells of a month as long as its rectangle stays; another layout has other cells there.
void MvPageItem::removeOutdatedCells()
{
    const bool isSameLayout = m_shown.contentConfig().date() == m_cellsPage.contentConfig().date() &&
                              m_shown.appearance().layoutSchema() == m_cellsPage.appearance().layoutSchema() &&
                              m_shown.isSimple() == m_cellsPage.isSimple() &&
                              calendariaOf(m_shown) == calendariaOf(m_cellsPage);
    if (!isSameLayout)
        m_cells->setStartDate(QDate());
    m_cellsPage = m_shown;
}

void MvPageItem::discardCache()
{
    m_cache = {};
    update();
}

QRectF MvPageItem::boundingRect() const
{
    return m_pageRect.adjusted(-shadowWidth, -shadowWidth, shadowWidth, shadowWidth);
}

void MvPageItem::paint(QPainter *painter, const QStyleOptionGraphicsItem * /*option*/, QWidget * /*widget*/)
{
    if (m_pageRect.isEmpty())
        return;
    const QPaintDevice *device = painter->device();
    const double ratio = device->devicePixelRatioF();
    QTransform transform = painter->worldTransform() * QTransform::fromScale(ratio, ratio);
    const QPoint origin = takeWholePixels(&transform);
    const QRect all = pixelsOf(transform, boundingRect());
    const QRect screen = QRect(-origin, QSize(device->width(), device->height()) * ratio);
    if (m_cache.transform != transform || !m_cache.rect.contains(all & screen)) {
        // a little more than what is seen, so that scrolling finds it there
        const QRect area =
            all & screen.adjusted(-screen.width() / 4, -screen.height() / 4, screen.width() / 4, screen.height() / 4);
        if (area.isEmpty())
            return;
        m_cache = {QPixmap(area.size()), transform, area};
        m_cache.pixels.fill(Qt::transparent);
        QPainter into(&m_cache.pixels);
        into.setRenderHints(painter->renderHints());
        into.setTransform(transform * QTransform::fromTranslate(-area.x(), -area.y()));
        paintInto(into, ratio);
        into.end();
        m_cache.pixels.setDevicePixelRatio(ratio);
    }
    painter->save();
    painter->resetTransform();
    painter->drawPixmap(QPointF(m_cache.rect.topLeft() + origin) / ratio, m_cache.pixels);
    painter->restore();
}

void MvPageItem::paintInto(QPainter &painter, double pixelRatio) const
{
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    paintShadow(painter);
    painter.fillRect(m_pageRect, Qt::white);
    painter.setClipRect(m_pageRect);
    m_shown.paintGround(painter, m_project->document().format());
    paintFotos(painter, pixelRatio);
    m_recording.replay(painter);
}

/// Painting asks for what it has not; here nobody sees what it has.
void MvPageItem::askForFotos(const QTransform &toPixels) const
{
    if (m_pageRect.isEmpty())
        return;
    QImage nowhere(1, 1, QImage::Format_RGB32);
    QPainter painter(&nowhere);
    painter.setTransform(toPixels);
    MvScreenFotoSource source(*m_fotos);
    MvRenderingRule(0).encodeInto(painter);
    m_shown.paintFoto(painter, m_project->document().format(), source);
}

void MvPageItem::paintShadow(QPainter &painter) const
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(shadowColor);
    for (int step = 1; step <= shadowSteps; ++step) {
        const double reach = double(shadowWidth) * step / shadowSteps;
        const QRectF rect = m_pageRect.adjusted(-reach * 0.7, -reach * 0.5, reach * 0.7, reach);
        painter.drawRoundedRect(rect, reach, reach);
    }
}

void MvPageItem::paintFotos(QPainter &painter, double pixelRatio) const
{
    MvScreenFotoSource source(*m_fotos);
    MvRenderingRule(0).encodeInto(painter); // places that stay empty are told about below
    m_shown.paintFoto(painter, m_project->document().format(), source);
    screenRule().encodeInto(painter);
    MvFrameNotices::paint(painter, m_elements, m_pageRect, m_fotos.get(), pixelRatio);
}
