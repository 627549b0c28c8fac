// SPDX-License-Identifier: LGPL-2.1-or-later
#include "pages/MvPageStripDelegate.h"

#include "pages/MvFrameNotices.h"
#include "pages/MvPageStripModel.h"

#include <QImage>
#include <QPainter>
#include <QStyle>

namespace {

constexpr int textGap = 4;
constexpr int frameWidth = 2;
constexpr int corner = 4;

/// A folded corner: this page is not like the others.
void paintDeviation(QPainter &painter, const QRect &sheet, const QColor &color)
{
    constexpr int side = 12;
    const QPointF tip = sheet.topRight() + QPoint(1, 0);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    painter.drawPolygon(QPolygonF({tip, tip - QPointF(side, 0), tip + QPointF(0, side)}));
    painter.restore();
}

} // namespace

QSize MvPageStripDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex & /*index*/) const
{
    return {m_size.width() + 2 * margin, m_size.height() + 2 * margin + textGap + option.fontMetrics.height()};
}

void MvPageStripDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    const bool isCurrent = option.state & QStyle::State_Selected;
    const bool isActive = option.state & QStyle::State_Active;
    const QPalette::ColorGroup group = isActive ? QPalette::Active : QPalette::Inactive;
    painter->save();
    painter->setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    const QRectF cell = QRectF(option.rect).adjusted(2, 1, -2, -1);
    if (isCurrent || (option.state & QStyle::State_MouseOver)) {
        QColor ground = option.palette.color(group, QPalette::Highlight);
        ground.setAlphaF(isCurrent ? 0.22F : 0.10F);
        painter->setPen(Qt::NoPen);
        painter->setBrush(ground);
        painter->drawRoundedRect(cell, corner, corner);
    }
    if (option.state & QStyle::State_HasFocus) {
        painter->setPen(QPen(option.palette.color(group, QPalette::Highlight), frameWidth));
        painter->setBrush(Qt::NoBrush);
        painter->drawRoundedRect(cell.adjusted(1, 1, -1, -1), corner, corner);
    }
    const QRect sheet(option.rect.left() + (option.rect.width() - m_size.width()) / 2, option.rect.top() + margin,
                      m_size.width(), m_size.height());
    painter->setRenderHint(QPainter::Antialiasing, false);
    const QImage image = index.data(Qt::DecorationRole).value<QImage>();
    if (image.isNull())
        painter->fillRect(sheet, option.palette.color(QPalette::AlternateBase));
    else
        painter->drawImage(sheet, image);
    painter->setPen(option.palette.color(QPalette::Mid));
    painter->setBrush(Qt::NoBrush);
    painter->drawRect(sheet.adjusted(-1, -1, 0, 0));

    const double resolution = index.data(MvPageStripModel::ResolutionRole).toDouble();
    MvFrameNotices::paintBadge(*painter, QPointF(sheet.right() - 2, sheet.bottom() - option.fontMetrics.height() - 4),
                               resolution, true);
    if (index.data(MvPageStripModel::DeviatesRole).toBool())
        paintDeviation(*painter, sheet, option.palette.color(QPalette::Highlight));
    painter->setBrush(Qt::NoBrush);

    const QRect text(option.rect.left() + margin / 2, sheet.bottom() + 1 + textGap, option.rect.width() - margin,
                     option.fontMetrics.height());
    QFont font = option.font;
    font.setBold(isCurrent);
    painter->setFont(font);
    painter->setPen(option.palette.color(group, QPalette::Text));
    const QString months = index.data(Qt::DisplayRole).toString();
    painter->drawText(text, Qt::AlignCenter, QFontMetrics(font).elidedText(months, Qt::ElideRight, text.width()));
    painter->restore();
}
