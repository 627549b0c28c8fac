// SPDX-License-Identifier: LGPL-2.1-or-later
#include "flows/MvPrintPlacement.h"

#include "MvCore/MvMath.h"
#include "MvProject/MvCalendarDocument.h"

#include <QPageLayout>
#include <QPrinter>

#include <algorithm>
#include <cmath>

namespace {

constexpr double rounding = 1.005; // whole points of the paper against tenths of a millimetre

/// What it leaves white whatever it is told, in dots.
QMarginsF whiteMargins(const QPrinter &printer)
{
    QPageLayout layout = printer.pageLayout();
    layout.setUnits(QPageLayout::Inch);
    return layout.minimumMargins() * double(printer.resolution());
}

/// How often the part of the page, on one side of its middle, fits in the room on that side of the paper's.
double fits(double room, double part)
{
    return part > 0.0 ? std::max(room, 0.0) / part : HUGE_VAL;
}

} // namespace

MvPrintPlacement::Extent MvPrintPlacement::extentOf(const MvCalendarDocument &document)
{
    Extent extent{document.format().trimSize(), {}};
    for (const MvCalendarPage &page : document.pages()) {
        for (const MvPageElement &element : page.elementsOn(document.format())) {
            if (element.kind() != MvPageElement::Kind::Foto)
                extent.read |= element.rect();
        }
    }
    extent.read &= QRectF(QPointF(), extent.page);
    return extent;
}

void MvPrintPlacement::setPaper(QPrinter *printer, const QSizeF &page)
{
    const QSizeF millimetres = page / 10.0;
    const bool isLandscape = page.width() > page.height();
    // a page size is upright; its orientation stands beside it
    const QPageSize size(isLandscape ? millimetres.transposed() : millimetres, QPageSize::Millimeter, {},
                         QPageSize::FuzzyMatch);
    printer->setPageSize(size);
    printer->setPageOrientation(isLandscape ? QPageLayout::Landscape : QPageLayout::Portrait);
    printer->setFullPage(true);
    printer->setPageMargins({});
}

MvPrintPlacement::MvPrintPlacement(const QPrinter &printer, const Extent &extent, Size size)
    : m_natural(printer.resolution() / MvMath::tenthMillimetresPerInch)
    , m_scale(m_natural)
{
    const QRectF paper = printer.paperRect(QPrinter::DevicePixel);
    const QRectF printable = paper.marginsRemoved(whiteMargins(printer));
    const QPointF middle(extent.page.width() / 2.0, extent.page.height() / 2.0);
    QPointF center = paper.center();
    if (size == Size::Fitting) {
        const double most = std::min(paper.width() / extent.page.width(), paper.height() / extent.page.height());
        m_scale = m_natural > most * rounding ? most : m_natural;
        const auto fitting = [&](const QPointF &at) {
            return std::min({fits(at.x() - printable.left(), middle.x() - extent.read.left()),
                             fits(printable.right() - at.x(), extent.read.right() - middle.x()),
                             fits(at.y() - printable.top(), middle.y() - extent.read.top()),
                             fits(printable.bottom() - at.y(), extent.read.bottom() - middle.y())});
        };
        if (!extent.read.isEmpty() && fitting(center) * rounding < m_scale) {
            center = printable.center();
            m_scale = std::min(m_scale, fitting(center));
        }
    }
    m_corner = center - middle * m_scale;
}

int MvPrintPlacement::percent() const
{
    return int(std::lround(100.0 * m_scale / m_natural));
}

double MvPrintPlacement::whiteMargin(const QPrinter &printer)
{
    QPageLayout layout = printer.pageLayout();
    layout.setUnits(QPageLayout::Millimeter);
    const QMarginsF margins = layout.minimumMargins();
    return std::max({margins.left(), margins.top(), margins.right(), margins.bottom()});
}
