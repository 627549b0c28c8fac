// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvGUIWidgets/mvguiwidgets_export.h"

#include <QColor>
#include <QString>

class QPainter;
class QPalette;
class QRect;

/// How a colour is shown, wherever one can be chosen.
class MVGUIWIDGETS_EXPORT MvColorSwatch
{
public:
    /// Fills the rectangle, framed; over a checkerboard where the colour lets its ground shine through.
    static void paint(QPainter &painter, const QRect &rect, const QColor &color, const QPalette &palette);
    /// Black or white, whichever reads better on the swatch of the colour.
    static QColor inkOn(const QColor &color);
    /// For tool tips and screen readers: "Weiß", "#F6F2EF", "#000000, 40 % deckend", "Durchsichtig".
    static QString name(const QColor &color);
};
