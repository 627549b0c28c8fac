// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QString>

/// An option of a command, "--name VALUE", or "--name" when it takes no value.
struct MvCliOption
{
    QString name;  // without dashes
    QString value; // what stands for the value in the help text; empty for a switch
    QString help;
    bool isRepeatable = false;
    bool isOperand = false; // its value may stand without its name
};
