// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProject/MvPdfObjects.h"

MvPdfObjects::~MvPdfObjects() = default;
