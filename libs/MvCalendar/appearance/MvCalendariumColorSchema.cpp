// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCalendariumColorSchema.h"

#include "MvCalendar/MvCalendariumColorSchemaImpl.h"

namespace {

std::function<MvCalendariumColorSchemaID(const MvCalendariumColorSchema &)> &idLookup()
{
    static std::function<MvCalendariumColorSchemaID(const MvCalendariumColorSchema &)> lookup;
    return lookup;
}

} // namespace

MvCalendariumColorSchema::MvCalendariumColorSchema()
    : d(new MvCalendariumColorSchemaImpl)
{}

MvCalendariumColorSchema::MvCalendariumColorSchema(const QDomElement &element)
    : MvCalendariumColorSchema()
{
    read(element);
}

MvCalendariumColorSchema::~MvCalendariumColorSchema() = default;
MvCalendariumColorSchema::MvCalendariumColorSchema(const MvCalendariumColorSchema &) = default;
MvCalendariumColorSchema::MvCalendariumColorSchema(MvCalendariumColorSchema &&) noexcept = default;
MvCalendariumColorSchema &MvCalendariumColorSchema::operator=(const MvCalendariumColorSchema &) = default;
MvCalendariumColorSchema &MvCalendariumColorSchema::operator=(MvCalendariumColorSchema &&) noexcept = default;

bool MvCalendariumColorSchema::isValid() const
{
    return !d->cells.isEmpty();
}

bool MvCalendariumColorSchema::read(const QDomElement &element)
{
    return d->read(element);
}

void MvCalendariumColorSchema::write(QDomElement &element, const MvCalendariumColorSchemaID &id) const
{
    d->write(element, id);
}

QColor MvCalendariumColorSchema::cellColor(const MvCalendarCellColorKey &key) const
{
    return d->cells.color(key);
}

void MvCalendariumColorSchema::setCellColor(const QColor &color, const MvCalendarCellColorKey &key)
{
    d->cells.setColor(color, key);
}

const MvCalendarCellColorInfo &MvCalendariumColorSchema::cellColors() const
{
    return d->cells;
}

MvBorderConfig MvCalendariumColorSchema::gridConfig() const
{
    return d->grid;
}

void MvCalendariumColorSchema::setGridConfig(const MvBorderConfig &grid)
{
    if (!(d.constData()->grid == grid))
        d->grid = grid;
}

MvBorderConfig MvCalendariumColorSchema::createDefaultBorder()
{
    return MvBorderConfig(Qt::black, MvDistance(2.0), BORDER_POSITION_CENTRED, false);
}

bool MvCalendariumColorSchema::deprecated() const
{
    return d->deprecated;
}

bool MvCalendariumColorSchema::isUserSchema() const
{
    return idLookup() && idLookup()(*this).isUserSchema();
}

bool MvCalendariumColorSchema::haveSameColors(const MvCalendarCellType &typeA, const MvCalendarCellType &typeB) const
{
    return d->cells.haveSameColors(typeA, typeB);
}

void MvCalendariumColorSchema::copyColors(const MvCalendarCellType &fromType, const MvCalendarCellType &toType)
{
    d->cells.copyColors(fromType, toType);
}

void MvCalendariumColorSchema::copyParities(bool from, bool to)
{
    d->cells.copyParities(from, to);
}

bool MvCalendariumColorSchema::distinguishesParities() const
{
    return d->cells.distinguishesParities();
}

bool MvCalendariumColorSchema::isOpaqueColor(const QColor &color)
{
    return color.isValid() && color.alpha() != 0;
}

QString MvCalendariumColorSchema::describeDifference(const MvCalendariumColorSchema &other) const
{
    return d->describeDifference(*other.d);
}

size_t MvCalendariumColorSchema::hashValue() const
{
    return d->cells.hashValue();
}

void MvCalendariumColorSchema::setIdLookup(
    std::function<MvCalendariumColorSchemaID(const MvCalendariumColorSchema &)> lookup)
{
    idLookup() = std::move(lookup);
}

bool operator==(const MvCalendariumColorSchema &a, const MvCalendariumColorSchema &b)
{
    return a.d == b.d || *a.d == *b.d;
}
