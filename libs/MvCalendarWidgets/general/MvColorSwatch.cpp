// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvGUIWidgets/MvColorSwatch.h"

#include <QCoreApplication>
#include <QPainter>
#include <QPalette>

namespace {

constexpr int checksPerHeight = 4;

void paintCheckerboard(QPainter &painter, const QRect &rect)
{
    painter.fillRect(rect, Qt::white); // stands for paper, whatever the theme
    const int side = qMax(2, rect.height() / checksPerHeight);
    for (int y = 0; y * side < rect.height(); ++y) {
        for (int x = y % 2; x * side < rect.width(); x += 2)
            painter.fillRect(QRect(rect.x() + x * side, rect.y() + y * side, side, side) & rect, Qt::lightGray);
    }
}

} // namespace

void MvColorSwatch::paint(QPainter &painter, const QRect &rect, const QColor &color, const QPalette &palette)
{
    painter.save();
    if (!color.isValid() || color.alpha() < 255)
        paintCheckerboard(painter, rect);
    if (color.isValid())
        painter.fillRect(rect, color);
    QColor frame = palette.color(QPalette::Text);
    frame.setAlphaF(0.35F); // visible on every background and beside every swatch
    painter.setPen(frame);
    painter.drawRect(rect.adjusted(0, 0, -1, -1));
    painter.restore();
}

QColor MvColorSwatch::inkOn(const QColor &color)
{
    const double alpha = color.isValid() ? color.alphaF() : 0.0;
    const double gray = alpha * qGray(color.rgb()) + (1.0 - alpha) * 255.0;
    return gray < 140.0 ? Qt::white : Qt::black;
}

QString MvColorSwatch::name(const QColor &color)
{
    if (!color.isValid() || color.alpha() == 0)
        return QCoreApplication::translate("MvColorSwatch", "Durchsichtig");
    QString name = color.name().toUpper();
    if (color.rgb() == QColor(Qt::white).rgb())
        name = QCoreApplication::translate("MvColorSwatch", "Weiß");
    else if (color.rgb() == QColor(Qt::black).rgb())
        name = QCoreApplication::translate("MvColorSwatch", "Schwarz");
    if (color.alpha() == 255)
        return name;
    return QCoreApplication::translate("MvColorSwatch", "%1, %2 % deckend").arg(name).arg(qRound(color.alphaF() * 100));
}
