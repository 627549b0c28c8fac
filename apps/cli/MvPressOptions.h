// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvProject/MvPressSettings.h"
#include "plain/MvCliOption.h"

#include <QCoreApplication>
#include <QList>

class MvCliArguments;
class MvCliValues;

/// The options of "render" for files that go to a print shop: "--press" and what belongs to it.
class MvPressOptions
{
    Q_DECLARE_TR_FUNCTIONS(MvPressOptions)

public:
    static QList<MvCliOption> options();

    /// For no press without "--press". Mistakes are left with the values; what a file of settings says about marks,
    /// bleed, photos and ink means nothing then.
    static MvPressSettings settings(MvCliValues &values, const MvCliArguments &arguments);
};
