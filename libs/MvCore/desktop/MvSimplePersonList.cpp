// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCore/MvSimplePersonList.h"

MvSimplePersonList::~MvSimplePersonList() = default;
