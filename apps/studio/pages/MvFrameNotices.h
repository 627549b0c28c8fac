// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvProject/MvPageElement.h"

#include <QCoreApplication>
#include <QList>
#include <QRectF>
#include <QString>

class MvScreenFotos;
class QPainter;

/// What stands over the frames of a page on the screen and in no print: an invitation into an empty one, why a photo is
/// not to be seen, and a badge on a photo that will be coarse on paper.
class MvFrameNotices
{
    Q_DECLARE_TR_FUNCTIONS(MvFrameNotices)

public:
    static constexpr double discreetBelow = 150.0; // pixels per inch
    static constexpr double strongBelow = 100.0;

    /// For a painter that leads from page units to the pixels of a device, so many of which make a logical one: words
    /// are as large as elsewhere on the screen.
    static void paint(QPainter &painter, const QList<MvPageElement> &elements, const QRectF &page, MvScreenFotos *fotos,
                      double pixelRatio);

    /// The pixels per inch of what is seen in a frame; 0 when it is empty or nothing is known of the photo.
    static double resolution(const MvPageElement &element, MvScreenFotos *fotos);
    /// The coarsest of a page; 0 when there is none that is known.
    static double coarsest(const QList<MvPageElement> &elements, MvScreenFotos *fotos);
    /// A badge with its upper right corner at the point (logical pixels), if the number calls for one.
    static void paintBadge(QPainter &painter, const QPointF &corner, double pixelsPerInch, bool isSmall);
};
