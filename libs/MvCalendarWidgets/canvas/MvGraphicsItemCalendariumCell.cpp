// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvGraphicsItemCalendariumCell.h"

#include "MvCore/MvApplicationLocale.h"
#include "MvFoto/MvFotoList.h"
#include "MvModelBase/MvRenderingRule.h"

#include <QAccessible>
#include <QGraphicsSceneMouseEvent>
#include <QGraphicsView>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMimeData>
#include <QPainter>
#include <QPropertyAnimation>
#include <QWidget>

#include <cmath>

namespace {

constexpr qreal hiddenOpacity = 0.01; // not 0: an item that is not there at all gets no events
constexpr qreal hoverOpacity = 0.5;
constexpr qreal paintedFrom = 0.02;
constexpr int clickTime = 250; // ms
constexpr int fadeTime = 750;  // ms
constexpr qreal lineWidth = 1.5;
constexpr qreal focusLineWidth = 3;
constexpr int fillAlpha = 155;
constexpr int focusFillAlpha = 60;

bool isForPeople(const QPainter &painter)
{
    const MvRenderingRule rule = MvRenderingRule::decodeFrom(painter);
    return rule.hasFlag(MvRenderingRule::InteractiveScreen) && !rule.hasFlag(MvRenderingRule::Print) &&
           !rule.hasFlag(MvRenderingRule::Thumbnail);
}

QColor withAlpha(QColor color, int alpha)
{
    color.setAlpha(alpha);
    return color;
}

} // namespace

MvGraphicsItemCalendariumCell::MvGraphicsItemCalendariumCell(const QDate &date, QGraphicsItem *parent)
    : QGraphicsObject(parent)
    , m_date(date)
{
    setOpacity(hiddenOpacity);
    setAcceptHoverEvents(true);
    setAcceptDrops(true);
    setFlag(ItemIsFocusable);
    setToolTip(tr("Klicken um eigenen Eintrag am %1 zu erstellen")
                   .arg(MvApplicationLocale::instance().locale().toString(date, QLocale::LongFormat)));
    m_clickTimer.setSingleShot(true);
    connect(&m_clickTimer, &QTimer::timeout, this, &MvGraphicsItemCalendariumCell::onDataClicked);
}

MvGraphicsItemCalendariumCell::~MvGraphicsItemCalendariumCell() = default;

void MvGraphicsItemCalendariumCell::setBoundingRect(const QRectF &rect)
{
    if (m_boundingRect == rect)
        return;
    prepareGeometryChange();
    m_boundingRect = rect;
}

QRectF MvGraphicsItemCalendariumCell::boundingRect() const
{
    return m_boundingRect;
}

void MvGraphicsItemCalendariumCell::paint(QPainter *painter, const QStyleOptionGraphicsItem *, QWidget *widget)
{
    const QTransform &transform = painter->worldTransform();
    const qreal scale = std::hypot(transform.m11(), transform.m12()); // along the text, however it is turned
    if (opacity() <= paintedFrom || scale <= 0 || !isForPeople(*painter))
        return;
    const QColor color = (widget ? widget->palette() : QGuiApplication::palette()).color(QPalette::Highlight);
    const bool isFocused = hasKeyboardFocus();
    const qreal width = (isFocused ? focusLineWidth : lineWidth) / scale;
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(QPen(color, width, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
    painter->setBrush(withAlpha(color, isFocused ? focusFillAlpha : fillAlpha));
    const qreal inset = isFocused ? width / 2 : 0; // a thick line stays inside
    painter->drawRoundedRect(m_boundingRect.adjusted(inset, inset, -inset, -inset), lineWidth / scale,
                             lineWidth / scale);
    painter->restore();
}

// ---- mouse

void MvGraphicsItemCalendariumCell::hoverEnterEvent(QGraphicsSceneHoverEvent *)
{
    fade(true);
    Q_EMIT hoveredDate(m_date);
}

void MvGraphicsItemCalendariumCell::hoverLeaveEvent(QGraphicsSceneHoverEvent *)
{
    endHover();
}

void MvGraphicsItemCalendariumCell::endHover()
{
    Q_EMIT hoveredDate(QDate());
    fade(false);
}

void MvGraphicsItemCalendariumCell::fade(bool in)
{
    if (hasKeyboardFocus())
        return; // shown already
    if (!m_fade) {
        m_fade = new QPropertyAnimation(this, "opacity", this);
        m_fade->setDuration(fadeTime);
        m_fade->setStartValue(hiddenOpacity);
        m_fade->setEndValue(hoverOpacity);
    }
    m_fade->setDirection(in ? QAbstractAnimation::Forward : QAbstractAnimation::Backward);
    m_fade->setEasingCurve(in ? QEasingCurve::OutQuad : QEasingCurve::InQuad);
    m_fade->start();
}

void MvGraphicsItemCalendariumCell::mousePressEvent(QGraphicsSceneMouseEvent *event)
{
    if (!m_clickTimer.isActive())
        m_pressCount = 0; // presses of another button, long ago, make no double click
    ++m_pressCount;
    if (event->button() == Qt::LeftButton && sceneBoundingRect().contains(event->scenePos())) {
        m_pressScreenPos = event->screenPos();
        m_pressItemPos = scenePos();
        m_clickTimer.start(clickTime);
    }
    QGraphicsObject::mousePressEvent(event); // does not keep it: the calendarium below can be selected and dragged
}

void MvGraphicsItemCalendariumCell::onDataClicked()
{
    const bool isClick = m_pressCount == 1 && scenePos() == m_pressItemPos;
    m_pressCount = 0;
    if (isClick)
        Q_EMIT dateClicked(m_date, m_pressScreenPos);
}

void MvGraphicsItemCalendariumCell::cancelClick()
{
    m_clickTimer.stop();
    m_pressCount = 0;
}

// ---- keyboard and screen reader

void MvGraphicsItemCalendariumCell::press()
{
    const QRect rect = screenRect();
    Q_EMIT dateClicked(m_date, rect.isValid() ? rect.bottomLeft() : QPoint());
}

QString MvGraphicsItemCalendariumCell::accessibleName() const
{
    return MvApplicationLocale::instance().locale().toString(m_date, QLocale::LongFormat);
}

QRect MvGraphicsItemCalendariumCell::screenRect() const
{
    const QGraphicsView *view = scene() ? scene()->views().value(0) : nullptr;
    if (!view)
        return {};
    const QRect inView = view->mapFromScene(sceneBoundingRect()).boundingRect();
    return {view->viewport()->mapToGlobal(inView.topLeft()), inView.size()};
}

void MvGraphicsItemCalendariumCell::keyPressEvent(QKeyEvent *event)
{
    event->setAccepted(hasKeyboardFocus() && goByKey(event->key()));
}

/// False for a key that means nothing here.
bool MvGraphicsItemCalendariumCell::goByKey(int key)
{
    switch (key) {
    case Qt::Key_Left:
        Q_EMIT focusRequested(m_date.addDays(-1));
        return true;
    case Qt::Key_Right:
        Q_EMIT focusRequested(m_date.addDays(1));
        return true;
    case Qt::Key_Up:
        Q_EMIT focusRequested(m_date.addDays(-7));
        return true;
    case Qt::Key_Down:
        Q_EMIT focusRequested(m_date.addDays(7));
        return true;
    case Qt::Key_Home:
        Q_EMIT focusRequested({m_date.year(), m_date.month(), 1});
        return true;
    case Qt::Key_End:
        Q_EMIT focusRequested({m_date.year(), m_date.month(), m_date.daysInMonth()});
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        press();
        return true;
    case Qt::Key_Escape:
        clearFocus();
        if (parentItem())
            parentItem()->setFocus(Qt::OtherFocusReason);
        return true;
    default:
        return false;
    }
}

void MvGraphicsItemCalendariumCell::focusInEvent(QFocusEvent *event)
{
    const bool comesBack =
        event->reason() == Qt::PopupFocusReason || event->reason() == Qt::ActiveWindowFocusReason; // as it left
    if (!comesBack)
        m_hasKeyboardFocus = event->reason() != Qt::MouseFocusReason;
    if (m_hasKeyboardFocus)
        showFocus(true);
    QAccessibleEvent focus(this, QAccessible::Focus);
    QAccessible::updateAccessibility(&focus);
}

void MvGraphicsItemCalendariumCell::focusOutEvent(QFocusEvent *)
{
    showFocus(false);
}

void MvGraphicsItemCalendariumCell::showFocus(bool on)
{
    if (m_fade)
        m_fade->stop();
    setOpacity(on ? 1.0 : hiddenOpacity);
    update();
}

// ---- photos

void MvGraphicsItemCalendariumCell::dragEnterEvent(QGraphicsSceneDragDropEvent *event)
{
    const bool isPossible = !MvFotoList(event->mimeData()).isEmpty();
    event->setAccepted(isPossible);
    if (!isPossible)
        return;
    event->setDropAction(Qt::CopyAction);
    fade(true);
}

void MvGraphicsItemCalendariumCell::dragLeaveEvent(QGraphicsSceneDragDropEvent *)
{
    fade(false);
}

void MvGraphicsItemCalendariumCell::dropEvent(QGraphicsSceneDragDropEvent *event)
{
    fade(false);
    const MvFotoList fotos(event->mimeData());
    event->setAccepted(!fotos.isEmpty());
    if (fotos.isEmpty())
        return;
    event->setDropAction(Qt::CopyAction);
    Q_EMIT fotoDropped(m_date, fotos.first());
}
