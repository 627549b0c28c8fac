// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QStyledItemDelegate>

/// Paints a page of the strip: its thumbnail as a sheet of paper, the months below it.
class MvPageStripDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    /// In logical pixels.
    void setThumbnailSize(const QSize &size) { m_size = size; }

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;

    static constexpr int margin = 10; // around the thumbnail

private:
    QSize m_size;
};
