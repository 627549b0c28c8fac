// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvProject/MvPageElement.h"
#include "MvProject/MvPageFormat.h"

#include <QList>
#include <QRectF>

/// A part of a photo, at one of its edges, with something written on it, which one veil lies on. A value.
///
/// A field is larger than what it is for by a gutter and goes on to the photo's edges near it: a strip at the foot
/// becomes a band, a list at the side a column, a month in a corner a block of it. Fields that touch are one. A field
/// of texts alone is as wide as its photo when it lies at the photo's head or foot, and fades out towards the middle of
/// it. What is written in the midst of a photo has no field.
struct MvVeilField
{
    QRectF rect;
    QList<MvPageElement> elements;
    double fadeAbove = 0.0; // height of the part above the rectangle in which the veil fades out
    double fadeBelow = 0.0;

    /// Those of a page. `hasGroundFoto`: all of the sheet is a photo.
    static QList<MvVeilField> of(const QList<MvPageElement> &elements, const MvPageFormat &format, bool hasGroundFoto);
};
