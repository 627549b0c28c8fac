// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCore/MvApplicationLocale.h"

template class MvSingleton<MvApplicationLocale>;
