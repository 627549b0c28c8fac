// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvFoto/MvFotoResolution.h"

#include "MvCore/MvMath.h"
#include "MvModelBase/MvQualityTypeManager.h"
#include "MvModelBase/MvRenderingRule.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {

constexpr double largestSymbol = 120.0; // tenths of a millimetre
constexpr double symbolShare = 0.3;     // of the photo's shorter side
constexpr double margin = 0.2;          // between symbol and edges, of the symbol

} // namespace

double MvFotoResolution::pixelsPerInch(const QSizeF &pixels, const QSizeF &printed)
{
    if (pixels.isEmpty() || printed.isEmpty())
        return 0.0;
    return MvMath::tenthMillimetresPerInch *
           std::min(pixels.width() / printed.width(), pixels.height() / printed.height());
}

MvFotoResolution::Grade MvFotoResolution::grade(double pixelsPerInch)
{
    if (pixelsPerInch <= 0.0 || pixelsPerInch >= modestBelow)
        return Grade::Good;
    return pixelsPerInch < poorBelow ? Grade::Poor : Grade::Modest;
}

void MvFotoResolution::paintWarning(QPainter &painter, const QRectF &rect, double pixelsPerInch)
{
    if (grade(pixelsPerInch) != Grade::Poor ||
        !MvRenderingRule::decodeFrom(painter).hasFlag(MvRenderingRule::ShowQualityWarnings))
        return;
    const double edge = std::min(largestSymbol, symbolShare * std::min(rect.width(), rect.height()));
    const double pixelsPerUnit = std::sqrt(std::abs(painter.deviceTransform().determinant()));
    const QPixmap symbol = MvQualityTypeManager::instance().qualityWarningPixmap(int(std::ceil(edge * pixelsPerUnit)));
    if (symbol.isNull())
        return;
    const QPointF corner = rect.bottomRight() - (1.0 + margin) * QPointF(edge, edge);
    painter.save();
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawPixmap(QRectF(corner, QSizeF(edge, edge)), symbol, symbol.rect());
    painter.restore();
}
