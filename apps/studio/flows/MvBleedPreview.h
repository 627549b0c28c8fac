// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvProject/MvPressSettings.h"

#include <QList>
#include <QRectF>

class MvCalendarPage;
class MvPageFormat;
class QImage;
class QPainter;

/// The bleed that an export for a print shop makes up, painted from the small picture of a page: what lies along its
/// edges is mirrored outwards, or its last bit stretched.
class MvBleedPreview
{
public:
    /// The picture is that of the trimmed page; so far a bleed is painted around it. All lengths are tenths of a
    /// millimetre, in the system of the page.
    MvBleedPreview(const QImage &page, const QRectF &trim, double bleed, MvPressSettings::Bleed kind);

    void paint(QPainter &painter) const;

    /// The parts of the page's own bleed beside photos that end at the trim.
    static QList<QRectF> besideFotos(const MvCalendarPage &page, const MvPageFormat &format);

private:
    struct Band
    {
        double from; // of the page
        double length;
        double at; // where it is painted
        double size;
    };
    Band band(int side, double from, double length) const;

    const QImage &m_page;
    const QRectF m_trim;
    const double m_bleed;
    const MvPressSettings::Bleed m_kind;
};
