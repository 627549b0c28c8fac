// SPDX-License-Identifier: LGPL-2.1-or-later
#include "pages/MvPageKeys.h"

#include "pages/MvFotoHandle.h"
#include "pages/MvFrameEdits.h"
#include "pages/MvPageCanvas.h"
#include "pages/MvPageItem.h"
#include "pages/MvPageSelection.h"

#include "MvCalendar/MvGraphicsItemCalendariumCell.h"
#include "MvCalendar/MvGraphicsItemCalendariumCellsManager.h"

#include <QGraphicsScene>
#include <QKeyEvent>

#include <limits>

namespace {

constexpr double fotoStep = 0.05; // of the frame, per key

QPointF wayOf(int key)
{
    return {key == Qt::Key_Right  ? 1.0
            : key == Qt::Key_Left ? -1.0
                                  : 0.0,
            key == Qt::Key_Down ? 1.0
            : key == Qt::Key_Up ? -1.0
                                : 0.0};
}

} // namespace

MvPageKeys::MvPageKeys(MvPageCanvas *canvas, MvPageItem *item, MvFotoHandle *fotos)
    : QObject(canvas)
    , m_canvas(canvas)
    , m_item(item)
    , m_fotos(fotos)
{
    connect(canvas->scene(), &QGraphicsScene::focusItemChanged, this, [this] {
        if (focusDate().isValid())
            m_date = focusDate();
    });
}

bool MvPageKeys::press(const QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_PageDown:
        m_canvas->nextPage();
        return true;
    case Qt::Key_PageUp:
        m_canvas->previousPage();
        return true;
    case Qt::Key_Home:
        m_canvas->setCurrentPage(0);
        return true;
    case Qt::Key_End:
        m_canvas->setCurrentPage(std::numeric_limits<int>::max());
        return true;
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Up:
    case Qt::Key_Down:
        return pressArrow(event);
    case Qt::Key_Escape:
        pressEscape();
        return true;
    case Qt::Key_Delete:
        m_canvas->deleteChosen();
        return true;
    default:
        return false;
    }
}

bool MvPageKeys::pressArrow(const QKeyEvent *event)
{
    if (event->modifiers() & Qt::AltModifier) {
        m_fotos->moveFocus(wayOf(event->key()) * fotoStep);
        return true;
    }
    return moveFrames(event) || beginAtFirstDate() || turnPageByArrow(event->key());
}

void MvPageKeys::pressEscape()
{
    MvPageSelection *selection = m_canvas->selection();
    if (m_fotos->isDragging())
        m_fotos->cancelDrag();
    else if (selection->kind() != MvPageSelection::Kind::Calendar)
        selection->selectNothing();
    else
        setFocusDate({});
}

QDate MvPageKeys::focusDate() const
{
    const QGraphicsItem *focused = m_canvas->scene()->focusItem();
    const auto *cell =
        qobject_cast<const MvGraphicsItemCalendariumCell *>(focused != nullptr ? focused->toGraphicsObject() : nullptr);
    return cell != nullptr ? cell->date() : QDate();
}

bool MvPageKeys::setFocusDate(const QDate &date)
{
    if (date.isValid() && m_item->cells()->focusDate(date))
        return true;
    m_date = {};
    m_canvas->scene()->setFocusItem(nullptr);
    return false;
}

void MvPageKeys::enter()
{
    if (!setFocusDate(m_date))
        beginAtFirstDate();
}

void MvPageKeys::follow()
{
    if (m_date.isValid() && !focusDate().isValid())
        setFocusDate(m_date);
}

/// Where the keyboard begins when it is at no day: the first one of the page's month.
bool MvPageKeys::beginAtFirstDate()
{
    const QDate present = focusDate();
    if (present.isValid() && m_item->cells()->cell(present)->hasKeyboardFocus())
        return false;
    if (present.isValid() && setFocusDate(present)) // a click has left it there
        return true;
    const QDate first = m_item->shownPage().contentConfig().date();
    return setFocusDate(first) || setFocusDate(m_item->dates().value(0));
}

/// Beyond the page's days the calendar goes on with the next or the last page.
bool MvPageKeys::turnPageByArrow(int key)
{
    constexpr int week = 7;
    const QDate date = focusDate();
    const int days = key == Qt::Key_Right ? 1 : key == Qt::Key_Left ? -1 : key == Qt::Key_Down ? week : -week;
    const QDate next = date.addDays(days);
    const int page = m_canvas->currentPage();
    if (!date.isValid() || !m_item->dateRect(next).isEmpty())
        return false;
    m_canvas->setCurrentPage(page + (days > 0 ? 1 : -1));
    if (m_canvas->currentPage() == page)
        return true; // the calendar ends here
    m_date = next;   // taken up with the new page's cells
    m_canvas->scene()->setFocusItem(nullptr);
    return true;
}

/// Chosen frames go a millimetre with each key, a tenth with Shift; with Ctrl they grow or shrink by that.
bool MvPageKeys::moveFrames(const QKeyEvent *event)
{
    if (m_canvas->selection()->element() < 0 || m_fotos->isDragging())
        return false;
    const double step =
        event->modifiers() & Qt::ShiftModifier ? MvFrameEdits::millimetre / 10.0 : MvFrameEdits::millimetre;
    const QPointF way = wayOf(event->key()) * step;
    MvFrameEdits *frames = m_canvas->frames();
    return event->modifiers() & Qt::ControlModifier ? frames->growBy(way) : frames->moveBy(way);
}
