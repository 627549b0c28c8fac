// SPDX-License-Identifier: LGPL-2.1-or-later
// Qt headers that nearly every source of the project includes; precompiled once per target.
#pragma once

#include <QColor>
#include <QDate>
#include <QFile>
#include <QFont>
#include <QHash>
#include <QImage>
#include <QList>
#include <QObject>
#include <QPainter>
#include <QPainterPath>
#include <QString>
#include <QStringList>
