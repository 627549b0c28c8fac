// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvProject/MvCalendarPage.h"

#include <QColor>
#include <QImage>
#include <QList>

class MvFotoSource;
class QPainter;
struct MvVeilField;

/// The photos of a page, and the veils under what is written on them. Any thread that the source of the photos allows.
///
/// A veil has the colour of the page's ground. How strong it is follows
/// from the photo beneath: the least with which all but a fiftieth of what lies under the element gives the inks on it
/// a contrast of 4.5:1, so that a calm light sky needs hardly any. Inks that do not have that contrast on the ground
/// itself do not count.
class MvFotoVeil
{
public:
    static constexpr double demandedContrast = 4.5;

    /// What is handed over must outlive this.
    MvFotoVeil(const MvCalendarPage &page, const MvPageFormat &format, const QList<MvPageElement> &elements,
               MvFotoSource &fotos)
        : m_page(page)
        , m_format(format)
        , m_elements(elements)
        , m_fotos(fotos)
    {}

    void paintFotos(QPainter &painter) const;
    /// A veil for what is written on it, in page units.
    void paint(QPainter &painter, const QRectF &rect, const QList<QColor> &inks) const;
    /// The veil of a field, for all that is written on it.
    void paint(QPainter &painter, const MvVeilField &field) const;

    /// 0 to 1.
    static double strength(const QImage &beneath, const QColor &ground, const QList<QColor> &inks);
    /// 1 to 21, as the rules for legible pages on the web count it.
    static double contrast(const QColor &a, const QColor &b);

private:
    QColor ground() const;
    QColor veilFor(const QList<QColor> &inks) const;
    QImage beneath(const QRectF &rect) const;

    const MvCalendarPage &m_page;
    const MvPageFormat &m_format;
    const QList<MvPageElement> &m_elements;
    MvFotoSource &m_fotos;
};
