// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendarEvent.h"
#include "MvCalendarWidgets/mvcalendarwidgets_export.h"

#include <QStyledItemDelegate>

class MvFotoThumbnails;
class MvTableView;

/// The photo of an entry in a list, filling its cell. Under the mouse it can be changed and removed
/// (MvCalendarEventFotoDelegateEditorWidget), by keyboard with Enter or F2 and with Delete.
class MVCALENDARWIDGETS_EXPORT MvCalendarEventFotoDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    /// Belongs to the view.
    explicit MvCalendarEventFotoDelegate(MvTableView *view);
    ~MvCalendarEventFotoDelegate() override;

    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    void setEditorData(QWidget *editor, const QModelIndex &index) const override;
    void setModelData(QWidget *editor, QAbstractItemModel *model, const QModelIndex &index) const override;
    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;

protected:
    bool editorEvent(QEvent *event, QAbstractItemModel *model, const QStyleOptionViewItem &option,
                     const QModelIndex &index) override;

private:
    static void paintPlaceholder(QPainter *painter, const QRect &rect, const QPalette &palette);

    MvTableView *m_view;
    MvFotoThumbnails *m_thumbnails;
};
