// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvGUIWidgets/mvguiwidgets_export.h"

#include <QStyledItemDelegate>

class QAbstractItemView;

/// Shows the colours (Qt::EditRole) of a view's cells as swatches; a click, Space, Enter or F2 on a cell opens a
/// palette, and what is chosen there goes to the model.
///
/// Names for screen readers and tool tips come from the model.
class MVGUIWIDGETS_EXPORT MvColorDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    /// True in a cell that is to carry a small warning mark.
    static constexpr int WarningRole = Qt::UserRole + 100;

    /// The view owns the delegate. With `alphaAllowed` colours may be translucent.
    MvColorDelegate(QAbstractItemView *view, bool alphaAllowed);
    ~MvColorDelegate() override;

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    /// None: the palette is a window of its own, so that moving through the cells opens nothing.
    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    bool editorEvent(QEvent *event, QAbstractItemModel *model, const QStyleOptionViewItem &option,
                     const QModelIndex &index) override;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void openPalette(const QModelIndex &index);
    QList<QColor> usedColors() const;

    QAbstractItemView *m_view;
    bool m_alphaAllowed;
};
