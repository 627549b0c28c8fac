// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCalendarEventDelegateEditDelete.h"

#include "MvCalendar/MvCalendarEventDelegateEditDeleteWidget.h"
#include "MvCalendar/MvCalendarEventModel.h"

#include "MvGUIWidgets/MvTableView.h"

#include <QPainter>

namespace {

constexpr qreal focusInset = 2;
constexpr qreal cornerRadius = 4;

} // namespace

MvCalendarEventDelegateEditDelete::MvCalendarEventDelegateEditDelete(MvTableView *view)
    : QStyledItemDelegate(view)
    , m_view(view)
    , m_drawn(new MvCalendarEventDelegateEditDeleteWidget(MvCalendarEvent(), view))
{
    m_drawn->hide();
}

MvCalendarEventDelegateEditDelete::~MvCalendarEventDelegateEditDelete() = default;

QWidget *MvCalendarEventDelegateEditDelete::createEditor(QWidget *parent, const QStyleOptionViewItem &,
                                                         const QModelIndex &index) const
{
    return new MvCalendarEventDelegateEditDeleteWidget(index.data(Qt::UserRole).value<MvCalendarEvent>(), parent,
                                                       MvCalendarEventModel::sessionOf(index));
}

void MvCalendarEventDelegateEditDelete::setModelData(QWidget *, QAbstractItemModel *, const QModelIndex &) const
{}

QSize MvCalendarEventDelegateEditDelete::sizeHint(const QStyleOptionViewItem &, const QModelIndex &) const
{
    return m_drawn->sizeHint();
}

void MvCalendarEventDelegateEditDelete::paint(QPainter *painter, const QStyleOptionViewItem &option,
                                              const QModelIndex &index) const
{
    painter->save();
    if (!m_view->indexWidget(index)) {
        m_drawn->resize(option.rect.size());
        painter->translate(option.rect.topLeft());
        m_drawn->render(painter, {}, {}, QWidget::DrawChildren);
        painter->translate(-option.rect.topLeft());
    }
    if (option.state & QStyle::State_HasFocus) {
        painter->setRenderHint(QPainter::Antialiasing);
        painter->setPen(QPen(option.palette.color(QPalette::Active, QPalette::Highlight), 2));
        painter->drawRoundedRect(QRectF(option.rect).adjusted(focusInset, focusInset, -focusInset, -focusInset - 1),
                                 cornerRadius, cornerRadius);
    }
    painter->restore();
}
