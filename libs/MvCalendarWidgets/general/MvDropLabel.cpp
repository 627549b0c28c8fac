// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvGUIWidgets/MvDropLabel.h"

#include <QAccessibleWidget>
#include <QKeyEvent>
#include <QPainter>

#include <array>

namespace {

constexpr qreal cornerRadius = 6;

class DropLabelAccessible : public QAccessibleWidget
{
public:
    explicit DropLabelAccessible(QWidget *label)
        : QAccessibleWidget(label, QAccessible::Button)
    {}

    QStringList actionNames() const override { return {pressAction()}; }

    void doAction(const QString &action) override
    {
        if (action == pressAction() && widget()->isEnabled())
            Q_EMIT static_cast<MvDropLabel *>(widget())->pressed();
    }
};

QAccessibleInterface *makeAccessible(const QString &className, QObject *object)
{
    auto *label = className == QLatin1String("MvDropLabel") ? qobject_cast<MvDropLabel *>(object) : nullptr;
    return label ? new DropLabelAccessible(label) : nullptr;
}

QColor mixed(const QColor &a, const QColor &b, qreal shareOfB)
{
    const auto mix = [shareOfB](float x, float y) { return float(x + (y - x) * shareOfB); };
    return QColor::fromRgbF(mix(a.redF(), b.redF()), mix(a.greenF(), b.greenF()), mix(a.blueF(), b.blueF()));
}

} // namespace

MvDropLabel::MvDropLabel(QWidget *parent)
    : QLabel(parent)
{
    static const bool isInstalled = (QAccessible::installFactory(makeAccessible), true);
    Q_UNUSED(isInstalled)
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_Hover);
    setCursor(Qt::PointingHandCursor);
}

MvDropLabel::~MvDropLabel() = default;

void MvDropLabel::setDropOffered(bool offered)
{
    m_isDropOffered = offered;
    update();
}

bool MvDropLabel::event(QEvent *event)
{
    const bool changesFrame = event->type() == QEvent::HoverEnter || event->type() == QEvent::HoverLeave ||
                              event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut;
    if (changesFrame)
        update();
    return QLabel::event(event);
}

QColor MvDropLabel::frameColor() const
{
    if (m_isDropOffered || hasFocus())
        return palette().color(QPalette::Highlight);
    return mixed(palette().color(QPalette::Window), palette().color(QPalette::WindowText), underMouse() ? 0.6 : 0.4);
}

void MvDropLabel::paintEvent(QPaintEvent *event)
{
    const bool isEmpty = pixmap(Qt::ReturnByValue).isNull();
    const bool isMarked = m_isDropOffered || hasFocus();
    if (isEmpty || isMarked) {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        const qreal width = isMarked ? 2 : 1;
        painter.setPen(QPen(frameColor(), width, isEmpty ? Qt::DashLine : Qt::SolidLine));
        QColor fill = frameColor();
        fill.setAlphaF(m_isDropOffered ? 0.2F : 0.05F);
        painter.setBrush(fill);
        painter.drawRoundedRect(QRectF(rect()).adjusted(width, width, -width, -width), cornerRadius, cornerRadius);
    }
    QLabel::paintEvent(event);
}

void MvDropLabel::keyPressEvent(QKeyEvent *event)
{
    constexpr std::array keys{int(Qt::Key_Space), int(Qt::Key_Return), int(Qt::Key_Enter)};
    if (std::find(keys.begin(), keys.end(), event->key()) == keys.end())
        return QLabel::keyPressEvent(event);
    if (!event->isAutoRepeat())
        Q_EMIT pressed();
}

void MvDropLabel::mousePressEvent(QMouseEvent *event)
{
    m_isMouseDown = event->button() == Qt::LeftButton;
    event->setAccepted(m_isMouseDown);
}

void MvDropLabel::mouseReleaseEvent(QMouseEvent *event)
{
    const bool isPressed = m_isMouseDown && rect().contains(event->position().toPoint());
    m_isMouseDown = false;
    if (isPressed)
        Q_EMIT pressed();
}
