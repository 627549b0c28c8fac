// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QtGlobal>

#include <compare>

/// A length on paper, in tenths of a millimetre.
class MvDistance
{
public:
    constexpr MvDistance() = default;
    constexpr explicit MvDistance(double tenthMillimetres)
        : m_value(tenthMillimetres)
    {}

    static constexpr MvDistance fromMillimetres(double millimetres) { return MvDistance(millimetres * 10.0); }

    constexpr double tenthMillimetres() const { return m_value; }
    constexpr double millimetres() const { return m_value / 10.0; }

    bool operator==(const MvDistance &) const = default;
    auto operator<=>(const MvDistance &) const = default; // NOLINT(modernize-use-nullptr): a false alarm

private:
    double m_value = 0.0;
};
