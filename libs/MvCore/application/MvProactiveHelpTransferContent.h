// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QString>

/// What a help notice hands over to the place it leads to: a kind (0: nothing) and a text.
struct MvProactiveHelpTransferContent
{
    int kind = 0;
    QString text;

    bool operator==(const MvProactiveHelpTransferContent &) const = default;
};
