// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvGUIWidgets/MvBubble.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

#include <utility>

namespace {

constexpr int distance = 4; // pixels to the edges of the window
constexpr int padding = 10;

bool isPress(QEvent::Type type)
{
    return type == QEvent::MouseButtonPress || type == QEvent::TouchBegin || type == QEvent::TabletPress;
}

} // namespace

MvBubble::MvBubble(QWidget *widget)
    : QWidget(widget->window())
    , m_scroll(new QScrollArea(this))
{
    setAttribute(Qt::WA_NoMousePropagation);
    setFocusPolicy(Qt::NoFocus);
    hide();
    m_scroll->setFrameShape(QFrame::NoFrame);
    m_scroll->setFocusPolicy(Qt::NoFocus);
    m_scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_scroll->setWidgetResizable(true);
    m_scroll->viewport()->setAutoFillBackground(false);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(padding, padding, padding, padding);
    layout->addWidget(m_scroll);
}

MvBubble::~MvBubble() = default;

void MvBubble::setContent(QWidget *content)
{
    m_scroll->setWidget(content);
    content->setAutoFillBackground(false);
    content->installEventFilter(this); // tells when it needs another size
}

// ---- place

/// The part of the window that is to be seen.
QRect MvBubble::room() const
{
    const QWidget *window = parentWidget();
    const QRect screen = window->screen()->availableGeometry();
    const QRect seen = window->rect() & QRect(window->mapFromGlobal(screen.topLeft()), screen.size());
    return seen.adjusted(distance, distance, -distance, -distance);
}

void MvBubble::openAt(const QRect &target)
{
    m_target = QRect(parentWidget()->mapFromGlobal(target.topLeft()), target.size());
    adjust();
    if (!isHidden())
        return;
    m_focusBefore = QApplication::focusWidget();
    qApp->installEventFilter(this);
    connect(qApp, &QApplication::focusChanged, this, &MvBubble::onFocusChanged);
    show();
    raise();
}

void MvBubble::adjust()
{
    if (!m_scroll->widget())
        return;
    const QRect space = room();
    const QWidget *content = m_scroll->widget();
    QSize size = content->sizeHint();
    const int scrollBar = m_scroll->verticalScrollBar()->sizeHint().width();
    if (content->hasHeightForWidth()) // beside a scroll bar, too: one that is there would else stay
        size.setHeight(qMax(size.height(), content->heightForWidth(size.width() - scrollBar)));
    const int around = 2 * padding;
    const bool hasRoom = size.height() + around + MvBubblePlacement::arrowLength <= space.height();
    if (!hasRoom)
        size.rwidth() += scrollBar;
    m_scroll->setVerticalScrollBarPolicy(hasRoom ? Qt::ScrollBarAlwaysOff : Qt::ScrollBarAsNeeded);
    m_placement = MvBubblePlacement::beside(m_target, size + QSize(around, around), space);
    const QMargins arrow = m_placement.margins();
    layout()->setContentsMargins(QMargins(padding, padding, padding, padding) + arrow);
    setGeometry(m_placement.rect);
    update();
}

void MvBubble::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(palette().color(QPalette::Mid));
    painter.setBrush(palette().color(QPalette::Window));
    painter.drawPath(m_placement.outline());
}

// ---- leaving

/// The bubble's own parts, and the lists and sheets that they pop up.
bool MvBubble::holds(const QObject *object) const
{
    while (object && object != this)
        object = object->parent();
    return object != nullptr;
}

bool MvBubble::leave()
{
    if (m_isLeaving || isHidden())
        return true;
    m_isLeaving = true;
    const bool mayGo = mayLeave();
    m_isLeaving = false;
    if (mayGo)
        closeBubble();
    return mayGo;
}

void MvBubble::closeBubble()
{
    if (isHidden())
        return;
    qApp->removeEventFilter(this);
    disconnect(qApp, nullptr, this, nullptr);
    const QWidget *focus = QApplication::focusWidget();
    const bool hadFocus = focus && holds(focus);
    hide();
    if (hadFocus && m_focusBefore)
        m_focusBefore->setFocus(Qt::PopupFocusReason); // as it was left
    deleteLater();
}

void MvBubble::onFocusChanged(QWidget * /*before*/, QWidget *now)
{
    if (!now || now->window() != window() || holds(now) || m_isLeaving || leave())
        return;
    if (!QApplication::focusWidget() || !holds(QApplication::focusWidget()))
        focusNextPrevChild(true);
}

bool MvBubble::eventFilter(QObject *watched, QEvent *event)
{
    const QEvent::Type type = event->type();
    if (type == QEvent::LayoutRequest && m_scroll->widget() == watched) {
        adjust();
        return false;
    }
    if (type == QEvent::Shortcut) {
        const QWidget *modal = QApplication::activeModalWidget(); // a question of the bubble's own has shortcuts, too
        return (!modal || modal->window() == window()) && !holds(watched) && !leave();
    }
    auto *widget = qobject_cast<QWidget *>(watched);
    if (!widget || widget->window() != window() || holds(widget))
        return false;
    if (type == QEvent::Wheel) // what the bubble points at stays where it is
        return true;
    if (isPress(type))
        return !leave();
    if (type == QEvent::Close && widget == window() && !leave()) {
        event->ignore();
        return true;
    }
    if (type == QEvent::Resize && widget == window())
        QMetaObject::invokeMethod(this, &MvBubble::leave, Qt::QueuedConnection); // all of it stands elsewhere now
    return false;
}

bool MvBubble::event(QEvent *event)
{
    if (event->type() == QEvent::PaletteChange)
        update();
    return QWidget::event(event);
}

void MvBubble::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape)
        closeBubble();
    event->accept(); // nothing of it is for what lies below
}

void MvBubble::mousePressEvent(QMouseEvent *event)
{
    event->accept();
}

void MvBubble::wheelEvent(QWheelEvent *event)
{
    event->accept();
}

/// Round in the bubble.
bool MvBubble::focusNextPrevChild(bool next)
{
    QWidget *from = QApplication::focusWidget();
    if (!from || !holds(from))
        from = this;
    QWidget *widget = from;
    do {
        widget = next ? widget->nextInFocusChain() : widget->previousInFocusChain();
        const bool takesTab = (widget->focusPolicy() & Qt::TabFocus) && !widget->focusProxy();
        if (widget != this && holds(widget) && takesTab && widget->isVisibleTo(this) && widget->isEnabled()) {
            widget->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
            m_scroll->ensureWidgetVisible(widget);
            return true;
        }
    } while (widget != from);
    return true;
}
