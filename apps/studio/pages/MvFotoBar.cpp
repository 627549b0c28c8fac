// SPDX-License-Identifier: LGPL-2.1-or-later
#include "pages/MvFotoBar.h"

#include "common/MvStudioMerge.h"
#include "pages/MvFotoHandle.h"
#include "pages/MvPageItem.h"

#include "MvGUIWidgets/MvIconRegistry.h"
#include "MvProject/MvProject.h"

#include <QGraphicsView>
#include <QHBoxLayout>
#include <QSignalBlocker>
#include <QSlider>
#include <QTimer>
#include <QToolButton>

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr int steps = 300; // of the slider, a hundred per doubling
constexpr int air = 8;     // pixels to the photo's edge

int valueOf(double zoom)
{
    return int(std::lround(std::log2(zoom) * steps / std::log2(MvFotoElement::largestZoom)));
}

double zoomOf(int value)
{
    return std::exp2(value * std::log2(MvFotoElement::largestZoom) / steps);
}

} // namespace

MvFotoBar::MvFotoBar(MvProject *project, MvPageItem *item, MvFotoHandle *handle, QGraphicsView *view)
    : QWidget(view->viewport())
    , m_project(project)
    , m_item(item)
    , m_handle(handle)
    , m_view(view)
    , m_zoom(new QSlider(Qt::Horizontal, this))
    , m_whole(new QToolButton(this))
    , m_turn(new QToolButton(this))
{
    setObjectName(u"photoBar"_s);
    setAutoFillBackground(true);
    setCursor(Qt::ArrowCursor);
    m_zoom->setObjectName(u"photoZoom"_s);
    m_zoom->setAccessibleName(tr("Zoom des Fotos"));
    m_zoom->setToolTip(tr("Wie nah man dem Foto kommt; auch mit Strg und dem Mausrad"));
    m_zoom->setRange(0, steps);
    m_zoom->setPageStep(steps / 12);
    m_zoom->setMinimumWidth(110);
    m_turn->setObjectName(u"photoTurn"_s);
    m_turn->setIcon(MvIconRegistry::instance().icon(u"ico_studio_redo"_s));
    m_turn->setToolTip(tr("Im Uhrzeigersinn drehen"));
    m_turn->setAccessibleName(m_turn->toolTip());
    m_whole->setObjectName(u"photoWhole"_s);
    m_whole->setIcon(MvIconRegistry::instance().icon(u"ico_studio_zoom_fit"_s));
    m_whole->setToolTip(tr("Das ganze Foto zeigen, statt den Rahmen zu füllen"));
    m_whole->setAccessibleName(m_whole->toolTip());
    m_whole->setCheckable(true);
    for (QToolButton *button : {m_turn, m_whole}) {
        button->setAutoRaise(true);
        button->setFocusPolicy(Qt::StrongFocus);
    }
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(air, 2, air / 2, 2);
    row->setSpacing(air / 2);
    row->addWidget(m_zoom, 1);
    row->addWidget(m_whole);
    row->addWidget(m_turn);
    hide();
    connect(m_zoom, &QSlider::valueChanged, this, &MvFotoBar::zoom);
    connect(m_turn, &QToolButton::clicked, this, &MvFotoBar::turn);
    connect(m_whole, &QToolButton::clicked, this, &MvFotoBar::toggleFit);
    // a widget that comes or goes below the mouse sends the scene a move of its own, which must not come amid another
    connect(handle, &MvFotoHandle::activeFrameChanged, this, &MvFotoBar::follow, Qt::QueuedConnection);
    connect(item, &MvPageItem::refreshed, this, &MvFotoBar::follow);
}

/// Over the bar, the mouse is no longer over the photo.
void MvFotoBar::follow()
{
    int element = m_handle->activeFrame();
    if (element < 0 && isVisible() && underMouse())
        element = m_element;
    const MvFotoElement *foto = m_item->foto(element);
    if (!foto || foto->isEmpty()) {
        m_element = -1;
        hide();
        return;
    }
    m_element = element;
    const QSignalBlocker quiet(m_zoom);
    if (!m_zoom->isSliderDown())
        m_zoom->setValue(valueOf(foto->zoom()));
    m_whole->setChecked(foto->fit() == MvFotoElement::Fit::Whole);
    place(element);
}

void MvFotoBar::place(int element)
{
    const QRectF onPage = m_item->elements().at(element).rect() & m_item->pageRect();
    const QRect frame = m_view->mapFromScene(m_item->mapToScene(onPage).boundingRect()).boundingRect();
    const QSize size = sizeHint();
    if (frame.width() < size.width() / 2) { // hardly more than a bar itself
        hide();
        return;
    }
    QRect bar(QPoint(frame.center().x() - size.width() / 2, frame.bottom() - size.height() - air), size);
    const QRect room = m_view->viewport()->rect();
    bar.moveLeft(qBound(0, bar.left(), qMax(0, room.width() - bar.width())));
    bar.moveTop(qBound(0, bar.top(), qMax(0, room.height() - bar.height())));
    setGeometry(bar);
    show();
}

void MvFotoBar::leaveEvent(QEvent *event)
{
    QWidget::leaveEvent(event);
    QTimer::singleShot(0, this, &MvFotoBar::follow);
}

void MvFotoBar::zoom(int value)
{
    const MvFotoElement *foto = m_item->foto(m_element);
    if (!foto)
        return;
    MvFotoElement zoomed = *foto;
    zoomed.setZoom(zoomOf(value));
    MvCalendarPage page = m_item->shownPage();
    page.setFoto(m_element, zoomed);
    m_project->changePage(m_item->page(), page, tr("Foto vergrößern"), MvStudioMerge::FotoZoom);
}

void MvFotoBar::turn()
{
    const MvFotoElement *foto = m_item->foto(m_element);
    if (!foto)
        return;
    MvFotoElement turned = *foto;
    turned.setQuarterTurns(foto->quarterTurns() + 1);
    MvCalendarPage page = m_item->shownPage();
    page.setFoto(m_element, turned);
    m_project->changePage(m_item->page(), page, tr("Foto drehen"));
}

void MvFotoBar::toggleFit()
{
    const MvFotoElement *foto = m_item->foto(m_element);
    if (!foto)
        return;
    MvFotoElement changed = *foto;
    changed.setFit(m_whole->isChecked() ? MvFotoElement::Fit::Whole : MvFotoElement::Fit::Fill);
    MvCalendarPage page = m_item->shownPage();
    page.setFoto(m_element, changed);
    m_project->changePage(m_item->page(), page, tr("Foto einpassen"));
}
