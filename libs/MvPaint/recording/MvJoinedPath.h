// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QPainterPath>

/// One path of many, each moved to its place: in room that is taken once. Winding fill.
class MvJoinedPath
{
public:
    /// `elements`: of all paths that are to come.
    explicit MvJoinedPath(int elements)
    {
        m_path.reserve(elements + 1); // a path begins with an element that the first one replaces
        m_path.setFillRule(Qt::WindingFill);
    }

    void add(const QPainterPath &path, const QPointF &offset) { m_path.addPath(path.translated(offset)); }
    const QPainterPath &path() const { return m_path; }

private:
    QPainterPath m_path;
};
