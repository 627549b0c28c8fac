// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvModelBase/mvmodelbase_export.h"

class QPainter;

/// What a painter's output is for. The flags travel in the painter's render hints, in bits that Qt does not use, and
/// so reach every painter that takes over the hints.
class MVMODELBASE_EXPORT MvRenderingRule
{
public:
    enum Flag : unsigned {
        InteractiveScreen = 0x800,
        Print = 0x8000,
        Thumbnail = 0x200000,
        ShowQualityWarnings = 0x800000,
    };

    MvRenderingRule() = default;
    explicit MvRenderingRule(unsigned flags)
        : m_flags(flags & allFlags)
    {}

    /// The rule that a painter carries.
    static MvRenderingRule decodeFrom(const QPainter &painter);
    /// Replaces the rule that the painter carries; its other hints stay.
    void encodeInto(QPainter &painter) const;

    unsigned flags() const { return m_flags; }
    bool hasFlag(Flag flag) const { return (m_flags & flag) != 0; }
    void setFlag(Flag flag, bool on = true) { m_flags = on ? m_flags | flag : m_flags & ~unsigned(flag); }

    bool operator==(const MvRenderingRule &) const = default;

private:
    static constexpr unsigned allFlags = InteractiveScreen | Print | Thumbnail | ShowQualityWarnings;

    unsigned m_flags = 0;
};
