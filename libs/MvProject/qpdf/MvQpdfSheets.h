// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCore/MvOutcome.h"

#include <QString>
#include <QStringList>

class MvLocale;
class MvSheetPlan;
class QFile;

/// What MvPdfSheets promises, done with libqpdf.
class MvQpdfSheets
{
public:
    static MvOutcome write(QFile &from, QFile &to, const MvSheetPlan &plan, const QStringList &names,
                           const MvLocale &language);
};
