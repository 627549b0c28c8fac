// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendarCellColorKey.h"
#include "MvCalendar/MvCalendariumColorSchemaID.h"
#include "MvModelBase/MvBorderConfig.h"

#include <QSharedDataPointer>

#include <functional>

class MvCalendarCellColorInfo;
struct MvCalendariumColorSchemaImpl;
class QDomElement;

/// The colours of a calendarium: per cell type, role and week parity, and the grid lines. A value: copies share their
/// record until one is changed.
///
/// A default-constructed schema has no colours and is invalid: every colour of it is transparent.
class MVCALENDAR_EXPORT MvCalendariumColorSchema
{
public:
    MvCalendariumColorSchema();
    explicit MvCalendariumColorSchema(const QDomElement &element);
    ~MvCalendariumColorSchema();
    MvCalendariumColorSchema(const MvCalendariumColorSchema &);
    MvCalendariumColorSchema(MvCalendariumColorSchema &&) noexcept;
    MvCalendariumColorSchema &operator=(const MvCalendariumColorSchema &);
    MvCalendariumColorSchema &operator=(MvCalendariumColorSchema &&) noexcept;

    bool isValid() const;

    /// Reads "deprecated", the cell colours and the grid; what is missing takes its default. Always true.
    bool read(const QDomElement &element);
    void write(QDomElement &element, const MvCalendariumColorSchemaID &id) const;

    /// The colour of a single key; transparent when there is none.
    QColor cellColor(const MvCalendarCellColorKey &key) const;
    /// Sets the colour of every single key that the given key stands for.
    void setCellColor(const QColor &color, const MvCalendarCellColorKey &key);
    const MvCalendarCellColorInfo &cellColors() const;

    MvBorderConfig gridConfig() const;
    void setGridConfig(const MvBorderConfig &grid);
    /// Black, 0.2 mm, centred, disabled.
    static MvBorderConfig createDefaultBorder();

    bool deprecated() const;
    /// Whether the schema is registered under the id of a user schema.
    bool isUserSchema() const;

    bool haveSameColors(const MvCalendarCellType &typeA, const MvCalendarCellType &typeB) const;
    void copyColors(const MvCalendarCellType &fromType, const MvCalendarCellType &toType);
    /// Copies the colours of one parity over the other; true stands for even weeks.
    void copyParities(bool from, bool to);
    bool distinguishesParities() const;

    /// True for every valid colour that is not wholly transparent: a visible alpha is opaque enough to be painted.
    static bool isOpaqueColor(const QColor &color);

    /// What differs from the other schema, for the log.
    QString describeDifference(const MvCalendariumColorSchema &other) const;

    size_t hashValue() const;

    /// Installed by the schema registry, which knows the ids.
    static void setIdLookup(std::function<MvCalendariumColorSchemaID(const MvCalendariumColorSchema &)> lookup);

    MVCALENDAR_EXPORT friend bool operator==(const MvCalendariumColorSchema &a, const MvCalendariumColorSchema &b);

private:
    QSharedDataPointer<MvCalendariumColorSchemaImpl> d;
};

inline size_t qHash(const MvCalendariumColorSchema &schema, size_t seed = 0)
{
    return schema.hashValue() ^ seed;
}
