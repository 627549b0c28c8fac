// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCalendariumLayoutSchema.h"

#include "MvCalendar/MvCalendariumLayoutSchemaImpl.h"

#include <QDomElement>
#include <QFont>

MvCalendariumLayoutSchema::MvCalendariumLayoutSchema()
    : d(new MvCalendariumLayoutSchemaImpl)
{}

MvCalendariumLayoutSchema::MvCalendariumLayoutSchema(const QDomElement &element)
    : MvCalendariumLayoutSchema()
{
    read(element);
}

MvCalendariumLayoutSchema::~MvCalendariumLayoutSchema() = default;
MvCalendariumLayoutSchema::MvCalendariumLayoutSchema(const MvCalendariumLayoutSchema &) = default;
MvCalendariumLayoutSchema::MvCalendariumLayoutSchema(MvCalendariumLayoutSchema &&) noexcept = default;
MvCalendariumLayoutSchema &MvCalendariumLayoutSchema::operator=(const MvCalendariumLayoutSchema &) = default;
MvCalendariumLayoutSchema &MvCalendariumLayoutSchema::operator=(MvCalendariumLayoutSchema &&) noexcept = default;

void MvCalendariumLayoutSchema::read(const QDomElement &element)
{
    d->read(element);
}

void MvCalendariumLayoutSchema::write(QDomElement &element) const
{
    d->write(element);
}

bool MvCalendariumLayoutSchema::isValid() const
{
    return d->id.isValid();
}

bool MvCalendariumLayoutSchema::isUserSchema() const
{
    return d->id.isUserID();
}

const MvCalendariumLayoutSchemaID &MvCalendariumLayoutSchema::ID() const
{
    return d->id;
}

QString MvCalendariumLayoutSchema::name() const
{
    return d->name.isEmpty() ? d->id.toString() : d->name.text();
}

QString MvCalendariumLayoutSchema::description() const
{
    return d->description.text();
}

const MvLocalizedText &MvCalendariumLayoutSchema::localizedName() const
{
    return d->name;
}

const MvLocalizedText &MvCalendariumLayoutSchema::localizedDescription() const
{
    return d->description;
}

size_t MvCalendariumLayoutSchema::hashValue() const
{
    return qHashMulti(0, d->id, d->type, d->renderingInformation, d->cells.size());
}

const MvCalendariumLayoutCellInfo &MvCalendariumLayoutSchema::cellInfo(const MvCalendarCellType &type) const
{
    static const MvCalendariumLayoutCellInfo defaultInfo;
    const auto it = d->cells.constFind(type);
    return it == d->cells.cend() ? defaultInfo : *it;
}

QFont MvCalendariumLayoutSchema::font(const MvCalendarCellType &type) const
{
    return cellInfo(type).font();
}

Qt::Alignment MvCalendariumLayoutSchema::textAlignment(const MvCalendarCellType &type) const
{
    return cellInfo(type).textAlignment();
}

int MvCalendariumLayoutSchema::cellBorderWidth(const MvCalendarCellType &type) const
{
    return cellInfo(type).cellBorderWidth();
}

MvCalendarBorderType MvCalendariumLayoutSchema::borderType(const MvCalendarCellType &type) const
{
    return cellInfo(type).borderType();
}

QMarginsF MvCalendariumLayoutSchema::padding(const MvCalendarCellType &type) const
{
    return cellInfo(type).padding();
}

const MvCalendariumType &MvCalendariumLayoutSchema::calendariumType() const
{
    return d->type;
}

const MvCalendarRenderingInformation &MvCalendariumLayoutSchema::renderingInformation() const
{
    return d->renderingInformation;
}

void MvCalendariumLayoutSchema::setRenderingInformation(const MvCalendarRenderingInformation &information)
{
    if (d.constData()->renderingInformation != information)
        d->renderingInformation = information;
}

bool MvCalendariumLayoutSchema::showHolidays() const
{
    return d->showHolidays;
}

void MvCalendariumLayoutSchema::setShowHolidays(bool show)
{
    if (d.constData()->showHolidays != show)
        d->showHolidays = show;
}

const QString &MvCalendariumLayoutSchema::suggestedColumnHeaders() const
{
    return d->columnHeaders;
}

int MvCalendariumLayoutSchema::suggestedHolidayFontPercentage() const
{
    return d->holidayFontPercentage;
}

const MvCalendariumLayoutSchemaID &MvCalendariumLayoutSchema::monthLayout() const
{
    return d->monthLayout;
}

MvSpaceMagnitude MvCalendariumLayoutSchema::optimizedSize() const
{
    return d->optimizedSize;
}

bool MvCalendariumLayoutSchema::allCellsHaveNoBorder() const
{
    return d->noCellHasABorder;
}

bool MvCalendariumLayoutSchema::calendarCanPaintBorders() const
{
    return d->type.canPaintBorders();
}

bool operator==(const MvCalendariumLayoutSchema &a, const MvCalendariumLayoutSchema &b)
{
    return a.d == b.d || *a.d == *b.d;
}
