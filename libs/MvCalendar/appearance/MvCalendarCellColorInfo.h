// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendarCellColorKey.h"
#include "MvCalendar/MvCalendarCellDefaultColors.h"
#include "MvModelBase/MvColorList.h"

/// The colours of all cell types of a schema, by role, type and week parity.
///
/// Stored keys are single ones. A hash of the whole content is kept up to date, so that comparing is cheap.
class MVCALENDAR_EXPORT MvCalendarCellColorInfo
{
public:
    /// The colour stored under a single key; transparent when there is none.
    QColor color(const MvCalendarCellColorKey &key) const;
    bool colorIsDefined(const MvCalendarCellColorKey &key) const { return m_colors.contains(key); }
    bool isEmpty() const { return m_colors.isEmpty(); }
    /// Any stored colour of the role: that of the lowest cell type; transparent when there is none.
    QColor anyColor(const MvCalendarCellColorRole &role) const;
    /// The stored colours of all single keys that the given key stands for, in the order of roles, types and parities.
    MvColorList colors(const MvCalendarCellColorKey &key) const;
    /// Stores the colour under every single key that the given key stands for.
    void setColor(const QColor &color, const MvCalendarCellColorKey &key);

    /// The colours of one type become those of another, in every role and parity.
    void copyColors(const MvCalendarCellType &from, const MvCalendarCellType &to);
    /// The colours of one parity (true: even) become those of the other.
    void copyParities(bool from, bool to);

    bool haveSameColors(const MvCalendarCellType &a, const MvCalendarCellType &b) const;
    bool distinguishesParities() const;
    bool allCellsHaveTheSameColor(const MvCalendarCellColorRole &role) const;
    /// Whether a visible background is a real colour, not white, grey or black.
    bool hasChromaticBackground() const;
    /// The types that have a colour, as a set.
    MvCalendarCellType usedCellTypes() const;

    /// Reads the children "celldefault" and "cell"; every type has its colours afterwards, be it the default ones.
    void read(const QDomElement &element);
    /// Writes the defaults and, per type, what deviates from them.
    void write(QDomElement &element) const;

    /// What differs, for the log; empty when nothing does.
    QString describeDifference(const MvCalendarCellColorInfo &other) const;

    size_t hashValue() const { return m_hashValue; }
    bool operator==(const MvCalendarCellColorInfo &other) const;

private:
    MvCalendariumCellColorPair pair(const MvCalendarCellColorRole &role, const MvCalendarCellType &type) const;
    void store(const MvCalendarCellColorRole &role, const MvCalendarCellType &types,
               const MvCalendariumCellColorPair &pair);
    void createMissingInfos(const MvCalendarCellDefaultColors &defaults);
    bool hasColorsOf(const MvCalendarCellType &type) const;
    MvCalendarCellDefaultColors generateDefaults() const;
    QColor findDefault(const MvCalendarCellColorRole &role, bool even) const;
    void writeCell(QDomElement &parent, const MvCalendarCellType &type,
                   const MvCalendarCellDefaultColors &defaults) const;
    QList<MvCalendarCellColorKey> sortedKeys() const;
    size_t createHashValue() const;
    void updateHashValue() { m_hashValue = createHashValue(); }

    QHash<MvCalendarCellColorKey, QColor> m_colors;
    size_t m_hashValue = 0;
};
