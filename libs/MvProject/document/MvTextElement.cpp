// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProject/MvTextElement.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double mostSpacing = 100.0;
constexpr double leastSpacing = -20.0;

Qt::Alignment oneOf(Qt::Alignment given, std::initializer_list<Qt::AlignmentFlag> flags, Qt::AlignmentFlag otherwise)
{
    Qt::Alignment found;
    for (const Qt::AlignmentFlag flag : flags) {
        if (given.testFlag(flag))
            found |= flag;
    }
    return std::find(flags.begin(), flags.end(), found) == flags.end() ? Qt::Alignment(otherwise) : found;
}

} // namespace

void MvTextElement::setPoints(double points)
{
    if (std::isfinite(points))
        m_points = std::clamp(points, smallestPoints, largestPoints);
}

void MvTextElement::setLetterSpacing(double percent)
{
    if (std::isfinite(percent))
        m_letterSpacing = std::clamp(percent, leastSpacing, mostSpacing);
}

void MvTextElement::setAlignment(Qt::Alignment alignment)
{
    m_alignment = oneOf(alignment, {Qt::AlignLeft, Qt::AlignHCenter, Qt::AlignRight}, Qt::AlignLeft) |
                  oneOf(alignment, {Qt::AlignTop, Qt::AlignVCenter, Qt::AlignBottom}, Qt::AlignTop);
}
