// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCore/MvProcessTimeZone.h"

#include <QtGlobal>

void MvProcessTimeZone::askOnce()
{
    if (!qEnvironmentVariableIsSet("TZ"))
        qputenv("TZ", ":/etc/localtime");
}
