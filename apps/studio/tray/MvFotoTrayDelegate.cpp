// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tray/MvFotoTrayDelegate.h"

#include "tray/MvFotoTrayModel.h"

#include "MvFoto/MvFotoThumbnails.h"

#include <QFileInfo>
#include <QPainter>

using namespace Qt::StringLiterals;

namespace {

constexpr int margin = 4;
constexpr double markWidth = 3.0;

} // namespace

MvFotoTrayDelegate::MvFotoTrayDelegate(QObject *parent)
    : QStyledItemDelegate(parent)
    , m_pictures(new MvFotoThumbnails(this))
{
    connect(m_pictures, &MvFotoThumbnails::ready, this, &MvFotoTrayDelegate::pictureReady);
}

QSize MvFotoTrayDelegate::sizeHint(const QStyleOptionViewItem & /*option*/, const QModelIndex & /*index*/) const
{
    return pictureSize + QSize(2 * margin, 2 * margin);
}

void MvFotoTrayDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    const QRect rect = option.rect.adjusted(margin, margin, -margin, -margin);
    const int uses = index.data(MvFotoTrayModel::UsesRole).toInt();
    const MvFoto foto{QFileInfo(index.data(MvFotoTrayModel::PathRole).toString())};
    const QPixmap picture = m_pictures->cropped(foto, rect.size(), painter->device()->devicePixelRatioF());
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    if (picture.isNull()) {
        painter->fillRect(rect, option.palette.color(QPalette::AlternateBase));
        painter->setPen(option.palette.color(QPalette::PlaceholderText));
        painter->drawText(rect.adjusted(2, 2, -2, -2), Qt::AlignCenter | Qt::TextWrapAnywhere, index.data().toString());
    } else {
        painter->setOpacity(uses > 0 ? 0.55 : 1.0); // what is still free stands out
        painter->drawPixmap(rect, picture);
        painter->setOpacity(1.0);
    }
    const QColor mark = option.palette.color(QPalette::Highlight);
    if (option.state.testFlag(QStyle::State_Selected) || option.state.testFlag(QStyle::State_HasFocus)) {
        painter->setPen(QPen(mark, option.state.testFlag(QStyle::State_Selected) ? markWidth : 1.0));
        painter->setBrush(Qt::NoBrush);
        painter->drawRect(QRectF(rect).adjusted(-1, -1, 1, 1));
    }
    if (uses > 0) {
        const QString text = uses > 1 ? QString::number(uses) : u"✓"_s;
        const int side = option.fontMetrics.height();
        const int width = qMax(side, option.fontMetrics.horizontalAdvance(text) + side / 2);
        const QRect badge(rect.right() - width - 2, rect.top() + 3, width, side);
        painter->setPen(Qt::NoPen);
        painter->setBrush(mark);
        painter->drawRoundedRect(badge, side / 2.0, side / 2.0);
        painter->setPen(option.palette.color(QPalette::HighlightedText));
        painter->drawText(badge, Qt::AlignCenter, text);
    }
    painter->restore();
}
