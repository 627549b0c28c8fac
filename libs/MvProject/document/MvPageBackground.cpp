// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProject/MvPageBackground.h"

#include <algorithm>
#include <cmath>

void MvPageBackground::setVeil(double veil)
{
    m_veil = std::isfinite(veil) ? std::clamp(veil, 0.0, 1.0) : 0.0;
}
