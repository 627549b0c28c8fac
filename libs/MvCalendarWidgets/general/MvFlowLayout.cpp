// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvGUIWidgets/MvFlowLayout.h"

#include <QWidget>

#include <utility>

MvFlowLayout::MvFlowLayout(QWidget *parent)
    : QLayout(parent)
{}

MvFlowLayout::~MvFlowLayout()
{
    qDeleteAll(m_items);
}

void MvFlowLayout::addItem(QLayoutItem *item)
{
    m_items.append(item);
}

QLayoutItem *MvFlowLayout::takeAt(int index)
{
    return index >= 0 && index < m_items.size() ? m_items.takeAt(index) : nullptr;
}

int MvFlowLayout::heightForWidth(int width) const
{
    return arrange({0, 0, width, 0}, false);
}

QSize MvFlowLayout::sizeHint() const
{
    const QMargins around = contentsMargins();
    QSize size;
    for (const QLayoutItem *item : m_items) {
        if (item->isEmpty())
            continue;
        const QSize hint = item->sizeHint();
        size = {size.width() + (size.isEmpty() ? 0 : spacing()) + hint.width(), qMax(size.height(), hint.height())};
    }
    return size.expandedTo({0, 0}).grownBy(around);
}

QSize MvFlowLayout::minimumSize() const
{
    QSize size(0, 0);
    for (const QLayoutItem *item : m_items) {
        if (!item->isEmpty())
            size = size.expandedTo(item->sizeHint());
    }
    return size.grownBy(contentsMargins());
}

void MvFlowLayout::setGeometry(const QRect &rect)
{
    QLayout::setGeometry(rect);
    arrange(rect, true);
}

int MvFlowLayout::arrange(const QRect &rect, bool isMoving) const
{
    const QMargins around = contentsMargins();
    const QRect room = rect.marginsRemoved(around);
    QPoint place = room.topLeft();
    int lineHeight = 0;
    QList<std::pair<QLayoutItem *, QRect>> line;
    const auto finishLine = [&] {
        for (const auto &[item, at] : std::as_const(line))
            if (isMoving) // all of a line share its middle
                item->setGeometry(at.translated(0, (lineHeight - at.height()) / 2));
        line.clear();
    };
    for (QLayoutItem *item : m_items) {
        if (item->isEmpty()) // hidden
            continue;
        const QSize size = item->sizeHint();
        if (!line.isEmpty() && place.x() + size.width() > room.left() + room.width()) {
            finishLine();
            place = {room.left(), place.y() + lineHeight + spacing()};
            lineHeight = 0;
        }
        line.append({item, {place, size}});
        place.rx() += size.width() + spacing();
        lineHeight = qMax(lineHeight, size.height());
    }
    finishLine();
    return place.y() + lineHeight - rect.top() + around.bottom();
}
