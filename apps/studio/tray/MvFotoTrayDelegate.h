// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QStyledItemDelegate>

class MvFotoThumbnails;

/// Paints a photo of the tray: its middle, and a mark when it is on a page, with the number when it is on several.
class MvFotoTrayDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    static constexpr QSize pictureSize{96, 72}; // logical pixels

    explicit MvFotoTrayDelegate(QObject *parent = nullptr);

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;

Q_SIGNALS:
    /// A picture is there that was not.
    void pictureReady();

private:
    MvFotoThumbnails *m_pictures;
};
