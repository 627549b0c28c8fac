// SPDX-License-Identifier: LGPL-2.1-or-later
// Qt headers that nearly every source of the project includes; precompiled once per target.
#pragma once

#include "MvPrecompiledBase.h"

#include <QColor>
#include <QFont>
#include <QImage>
#include <QPainter>
#include <QPainterPath>
