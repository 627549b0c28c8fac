// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvProject/MvFotoElement.h"

#include <QCoreApplication>
#include <QImage>

class MvFotoSource;
class QPainter;

/// Paints photos in their frames, in the size that the painter's device needs. Any thread that the source of the photos
/// allows.
class MvFotoPainter
{
    Q_DECLARE_TR_FUNCTIONS(MvFotoPainter)

public:
    /// What is handed over must outlive the painter.
    MvFotoPainter(QPainter &painter, const MvFotoElement &foto, MvFotoSource &fotos)
        : m_painter(painter)
        , m_foto(foto)
        , m_fotos(fotos)
    {}

    /// Paints the photo into the rectangle, which is turned about its middle by some degrees. An empty frame paints
    /// nothing. Where the photo's file is missing: nothing on print, on a screen a grey field, which on an interactive
    /// one names the file. A photo that will look coarse in print is marked where quality warnings are shown.
    void paint(const QRectF &rect, double rotation = 0.0);

private:
    void paintUpright(const QRectF &rect);
    QImage decode(const QSize &full, double devicePixelsPerFotoPixel) const;
    void draw(const QImage &image, const QSize &full, const QRectF &rect);
    void drawCropped(const QImage &image, const QRectF &seen, const QRectF &rect);
    /// What is seen in the part of a frame of the size, in about as many pixels as the image has for it.
    QImage seenIn(const QRectF &part, const QSizeF &frame, const QImage &image, const QSize &full) const;
    /// In the brightness and contrast that the frame gives it.
    QImage corrected(const QImage &image) const;
    double borderWidth(const QRectF &covered) const;
    void drawBorder(const QRectF &covered);
    void paintPlaceholder(const QRectF &rect, bool isNamed);

    QPainter &m_painter;
    const MvFotoElement &m_foto;
    MvFotoSource &m_fotos;
    bool m_isTilted = false;
};
