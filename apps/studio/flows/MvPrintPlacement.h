// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QPointF>
#include <QRectF>
#include <QSizeF>

class MvCalendarDocument;
class QPrinter;

/// Where pages lie on a printer's paper, and how large: in their own size where the paper has room for it and nothing
/// that is read stands where the printer leaves its margin white, else as much smaller as that needs. Photos and
/// grounds may lose their edges to it.
class MvPrintPlacement
{
public:
    enum class Size {
        Fitting,
        Original, ///< whatever is lost
    };
    /// Of pages, in tenths of a millimetre from the corner of one.
    struct Extent
    {
        QSizeF page;
        QRectF read; ///< texts and calendaria of all pages
    };
    static Extent extentOf(const MvCalendarDocument &document);

    /// Gives the printer the paper of such pages, in tenths of a millimetre, whose edges it prints as far as it can.
    static void setPaper(QPrinter *printer, const QSizeF &page);

    MvPrintPlacement(const QPrinter &printer, const Extent &extent, Size size);

    /// Of the page, in the printer's dots.
    QPointF corner() const { return m_corner; }
    /// Dots of a tenth of a millimetre.
    double scale() const { return m_scale; }
    /// Of their own size.
    int percent() const;
    /// The widest margin that the printer leaves white, in millimetres.
    static double whiteMargin(const QPrinter &printer);

private:
    double m_natural;
    double m_scale;
    QPointF m_corner;
};
