// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvProductBase/mvproductbase_export.h"

#include <QSize>
#include <QString>

/// An image file and its size in pixels, known without reading the image. Default: no image.
struct MVPRODUCTBASE_EXPORT MvImageReference
{
    QString path;
    QSize size;

    bool isEmpty() const { return path.isEmpty(); }
    bool operator==(const MvImageReference &) const = default;
};
