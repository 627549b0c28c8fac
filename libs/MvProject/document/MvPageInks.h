// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvProject/MvCalendarPage.h"

#include <QColor>
#include <QList>

/// The colours of a page beside its calendaria: its ground, and what is written on it. Any thread.
class MvPageInks
{
public:
    /// The page must outlive this.
    explicit MvPageInks(const MvCalendarPage &page)
        : m_page(page)
    {}

    /// That of the page, else the one of empty cells; invalid where neither is opaque.
    QColor ground() const;
    QColor text() const;
    QColor accent() const;
    QColor of(const MvTextElement &text) const;
    /// Everything that an element is written in.
    QList<QColor> of(const MvPageElement &element) const;

private:
    QColor cell(const MvCalendarCellType &type, bool isFont) const;

    const MvCalendarPage &m_page;
};
