// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvModelBase/MvRenderingRule.h"

#include <QPainter>

MvRenderingRule MvRenderingRule::decodeFrom(const QPainter &painter)
{
    return MvRenderingRule(unsigned(painter.renderHints().toInt()));
}

void MvRenderingRule::encodeInto(QPainter &painter) const
{
    painter.setRenderHints(QPainter::RenderHints::fromInt(int(allFlags)), false);
    painter.setRenderHints(QPainter::RenderHints::fromInt(int(m_flags)), true);
}
