// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvProject/MvFotoFrame.h"

#include <QCoreApplication>
#include <QImage>

class MvFotoSource;
class QPainter;

/// Paints the photo of a page, in the size that the painter's device needs. Any thread that the source of the photos
/// allows.
class MvFotoPainter
{
    Q_DECLARE_TR_FUNCTIONS(MvFotoPainter)

public:
    /// What is handed over must outlive the painter.
    MvFotoPainter(QPainter &painter, const MvFotoFrame &frame, MvFotoSource &fotos)
        : m_painter(painter)
        , m_frame(frame)
        , m_fotos(fotos)
    {}

    /// Fills the rectangle with the photo. Where its file is missing: nothing on print, on a screen a grey field, which
    /// on an interactive one names the file. A photo that will look coarse in print is marked where quality warnings
    /// are shown.
    void paint(const QRectF &rect);

private:
    QImage decode(const QSize &full, double devicePixelsPerFotoPixel) const;
    void drawCropped(const QImage &image, const QRectF &seen, const QRectF &rect);
    void paintPlaceholder(const QRectF &rect, bool isNamed);

    QPainter &m_painter;
    const MvFotoFrame &m_frame;
    MvFotoSource &m_fotos;
};
