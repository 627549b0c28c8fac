// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvProject/MvSheetSettings.h"
#include "plain/MvCliOption.h"

#include <QCoreApplication>
#include <QList>

class MvCliArguments;
class MvCliValues;

/// The options of "render" for printers at home: large pages as tiles, several pages on a sheet.
class MvSheetOptions
{
    Q_DECLARE_TR_FUNCTIONS(MvSheetOptions)

public:
    static QList<MvCliOption> options();

    /// Pages as they are without "--tiles" and "--n-up". Mistakes are left with the values; the margin
    /// that a file of settings names means nothing then.
    static MvSheetSettings settings(MvCliValues &values, const MvCliArguments &arguments);

private:
    static void checkTogether(MvCliValues &values, const MvCliArguments &arguments);
    static QSizeF paper(MvCliValues &values, const QString &name, const QString &defaultName);
};
