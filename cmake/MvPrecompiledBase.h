// SPDX-License-Identifier: LGPL-2.1-or-later
// Headers of Qt Core that nearly every source of the project includes; precompiled once per target.
#pragma once

#include <QDate>
#include <QFile>
#include <QHash>
#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>
