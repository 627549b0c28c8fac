// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCore/MvSpaceMagnitude.h"

#include <QFont>

#include <algorithm>
#include <bit>
#include <cmath>

template class MvEnumWrapper<MvSpaceMagnitudeEnum>;

namespace {

constexpr double areaOfA0 = 10000.0 * 10000.0; // one square metre in square tenths of a millimetre

int stepOf(const MvSpaceMagnitude &magnitude)
{
    return std::bit_width(static_cast<quint32>(magnitude.toInt()));
}

} // namespace

void MvSpaceMagnitude::fillTable(Table *table) const
{
    table->insert(QStringLiteral("a8"), MAGNITUDE_A8);
    table->insert(QStringLiteral("a7"), MAGNITUDE_A7);
    table->insert(QStringLiteral("a6"), MAGNITUDE_A6);
    table->insert(QStringLiteral("a5"), MAGNITUDE_A5);
    table->insert(QStringLiteral("a4"), MAGNITUDE_A4);
    table->insert(QStringLiteral("a3"), MAGNITUDE_A3);
    table->insert(QStringLiteral("a2"), MAGNITUDE_A2);
    table->insert(QStringLiteral("a1"), MAGNITUDE_A1);
    table->insert(QStringLiteral("a0"), MAGNITUDE_A0);
}

MvSpaceMagnitude MvSpaceMagnitude::ofPage(double width, double height)
{
    if (!(width > 0.0) || !(height > 0.0))
        return MAGNITUDE_NONE;
    const int halvings = std::clamp(static_cast<int>(std::lround(std::log2(areaOfA0 / (width * height)))), 0, 8);
    return MvSpaceMagnitude(MAGNITUDE_A0 >> halvings);
}

double MvSpaceMagnitude::lengthFactor(const MvSpaceMagnitude &target) const
{
    if (!isValid() || !target.isValid())
        return 1.0;
    return std::pow(2.0, (stepOf(target) - stepOf(*this)) / 2.0);
}

QFont MvSpaceMagnitude::adaptFont(const QFont &font, const MvSpaceMagnitude &target) const
{
    QFont adapted = font;
    const double factor = lengthFactor(target);
    if (factor != 1.0)
        adapted.setPixelSize(std::max(1, static_cast<int>(std::lround(font.pixelSize() * factor))));
    return adapted;
}
