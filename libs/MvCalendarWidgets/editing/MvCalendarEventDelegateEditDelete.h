// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendarWidgets/mvcalendarwidgets_export.h"

#include <QStyledItemDelegate>

class MvCalendarEventDelegateEditDeleteWidget;
class MvTableView;

/// The buttons of an entry in a list: edit, delete. Drawn in every row; those under the mouse are real ones.
class MVCALENDARWIDGETS_EXPORT MvCalendarEventDelegateEditDelete : public QStyledItemDelegate
{
    Q_OBJECT

public:
    /// Belongs to the view.
    explicit MvCalendarEventDelegateEditDelete(MvTableView *view);
    ~MvCalendarEventDelegateEditDelete() override;

    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    /// Nothing: the buttons act on the entry themselves.
    void setModelData(QWidget *editor, QAbstractItemModel *model, const QModelIndex &index) const override;
    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;

private:
    MvTableView *m_view;
    MvCalendarEventDelegateEditDeleteWidget *m_drawn; // what rows without real buttons show
};
