// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

class QPainter;
class QRectF;

/// A drawn landscape that stands for a photo in pictures of templates and themes: an empty frame would not show how
/// they look.
class MvSampleFoto
{
public:
    /// Landscapes of neighbouring numbers differ in light and hills.
    static void paint(QPainter &painter, const QRectF &rect, int number);
};
