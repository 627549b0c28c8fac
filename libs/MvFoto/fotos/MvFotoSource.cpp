// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvFoto/MvFotoSource.h"

MvFotoSource::~MvFotoSource() = default;
