// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCalendariumAppearance.h"

#include "MvCalendar/MvCalendariumAppearanceImpl.h"
#include "MvCore/MvMath.h"

#include <QDomElement>
#include <QImage>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

// returned by calendariumOptions()
constexpr int holidaysOption = 1;
constexpr int holidayColorsOption = 2;

std::function<QList<MvCalendarCellType>(const MvCalendariumAppearance &)> &usedCellTypes()
{
    static std::function<QList<MvCalendarCellType>(const MvCalendariumAppearance &)> usedTypes;
    return usedTypes;
}

} // namespace

MvCalendariumAppearance::MvCalendariumAppearance()
    : d(new MvCalendariumAppearanceImpl)
{}

MvCalendariumAppearance::MvCalendariumAppearance(const QDomElement &element, bool adaptGrid,
                                                 MvCalendariumColorSchemaRegistry *registry)
    : MvCalendariumAppearance()
{
    fromXML(element, adaptGrid, registry);
}

MvCalendariumAppearance::~MvCalendariumAppearance() = default;
MvCalendariumAppearance::MvCalendariumAppearance(const MvCalendariumAppearance &) = default;
MvCalendariumAppearance::MvCalendariumAppearance(MvCalendariumAppearance &&) noexcept = default;
MvCalendariumAppearance &MvCalendariumAppearance::operator=(const MvCalendariumAppearance &) = default;
MvCalendariumAppearance &MvCalendariumAppearance::operator=(MvCalendariumAppearance &&) noexcept = default;

void MvCalendariumAppearance::fromXML(const QDomElement &element, bool adaptGrid,
                                      MvCalendariumColorSchemaRegistry *registry)
{
    d->read(element, adaptGrid, registry);
}

void MvCalendariumAppearance::write(QDomElement &element, bool embedUserSchema) const
{
    d->write(element, embedUserSchema);
}

bool MvCalendariumAppearance::isValid() const
{
    return d->colorSchema.isValid() && d->layoutSchema.isValid();
}

const MvCalendariumLayoutSchema &MvCalendariumAppearance::layoutSchema() const
{
    return d->layoutSchema;
}

void MvCalendariumAppearance::setLayoutSchema(const MvCalendariumLayoutSchema &schema)
{
    d->setLayoutSchema(schema);
}

void MvCalendariumAppearance::setLayoutSchemaByID(const MvCalendariumLayoutSchemaID &id)
{
    d->setLayoutSchemaById(id);
}

void MvCalendariumAppearance::adoptLayoutSuggestions()
{
    d->columnHeaders = MvColumnHeaders(d.constData()->layoutSchema.suggestedColumnHeaders());
    d->fontSettings.setFontSizePercentageHolidays(d.constData()->layoutSchema.suggestedHolidayFontPercentage());
}

const MvCalendariumType &MvCalendariumAppearance::type() const
{
    return d->layoutSchema.calendariumType();
}

const MvCalendarRenderingInformation &MvCalendariumAppearance::renderingInformation() const
{
    return d->layoutSchema.renderingInformation();
}

void MvCalendariumAppearance::setRenderingInformation(const MvCalendarRenderingInformation &information)
{
    if (renderingInformation() != information)
        d->layoutSchema.setRenderingInformation(information);
}

bool MvCalendariumAppearance::currentSchemaNeeds(const MvCalendarRenderingInformation &information) const
{
    return renderingInformation().hasAnyOf(information);
}

bool MvCalendariumAppearance::showHolidays() const
{
    return d->layoutSchema.showHolidays();
}

void MvCalendariumAppearance::setShowHolidays(bool show)
{
    if (showHolidays() != show)
        d->layoutSchema.setShowHolidays(show);
}

Qt::Alignment MvCalendariumAppearance::textAlignment(const MvCalendarCellType &cellType) const
{
    return d->layoutSchema.textAlignment(cellType);
}

int MvCalendariumAppearance::cellBorderWidth(const MvCalendarCellType &cellType) const
{
    return d->layoutSchema.cellBorderWidth(cellType);
}

QMarginsF MvCalendariumAppearance::padding(const MvCalendarCellType &cellType) const
{
    return d->layoutSchema.padding(cellType);
}

MvCalendarBorderType MvCalendariumAppearance::borderType(const MvCalendarCellType &cellType) const
{
    if (!gridConfig().isEnabled())
        return {};
    return d->layoutSchema.allCellsHaveNoBorder() ? MvCalendarBorderType(CALENDAR_BORDER_ALL)
                                                  : d->layoutSchema.borderType(cellType);
}

int MvCalendariumAppearance::calendariumOptions() const
{
    if (!showHolidays())
        return 0;
    const MvCalendariumTraits &traits = type().traits();
    return (traits.offersHolidays ? holidaysOption : 0) | (traits.offersHolidayColors ? holidayColorsOption : 0);
}

bool MvCalendariumAppearance::rendererShowsDays() const
{
    return usedCellTypes() && usedCellTypes()(*this).contains(CALENDAR_CELL_TYPE_WEEKDAY);
}

const MvCalendariumColorSchema &MvCalendariumAppearance::colorSchema() const
{
    return d->colorSchema;
}

void MvCalendariumAppearance::setColorSchema(const MvCalendariumColorSchema &schema)
{
    d->colorSchema = schema;
}

void MvCalendariumAppearance::setColorSchemaById(const MvCalendariumColorSchemaID &id,
                                                 MvCalendariumColorSchemaRegistry *registry)
{
    d->setColorSchemaById(id, registry);
}

MvCalendariumAppearance MvCalendariumAppearance::createVariant(const MvCalendariumColorSchema &schema) const
{
    MvCalendariumAppearance variant = *this;
    variant.setColorSchema(schema);
    return variant;
}

MvBorderConfig MvCalendariumAppearance::gridConfig() const
{
    return d->colorSchema.gridConfig();
}

void MvCalendariumAppearance::setGridConfig(const MvBorderConfig &grid)
{
    if (!(gridConfig() == grid))
        d->colorSchema.setGridConfig(grid);
}

void MvCalendariumAppearance::adaptGridToLayout()
{
    d->adaptGridToLayout();
}

QColor MvCalendariumAppearance::cellColor(const MvCalendarCellColorKey &key) const
{
    return d->colorSchema.cellColor(key);
}

void MvCalendariumAppearance::setCellColor(const QColor &color, const MvCalendarCellColorKey &key)
{
    d->colorSchema.setCellColor(color, key);
}

bool MvCalendariumAppearance::haveSameColors(const MvCalendarCellType &typeA, const MvCalendarCellType &typeB) const
{
    return d->colorSchema.haveSameColors(typeA, typeB);
}

bool MvCalendariumAppearance::distinguishesParities() const
{
    return d->colorSchema.distinguishesParities();
}

void MvCalendariumAppearance::copyColors(const MvCalendarCellType &fromType, const MvCalendarCellType &toType)
{
    d->colorSchema.copyColors(fromType, toType);
}

void MvCalendariumAppearance::copyParities(bool from, bool to)
{
    d->colorSchema.copyParities(from, to);
}

bool MvCalendariumAppearance::isOpaqueColor(const QColor &color) const
{
    return MvCalendariumColorSchema::isOpaqueColor(color);
}

bool MvCalendariumAppearance::shouldIPaintTheBackground(const MvCalendarCellType &cellType, bool even) const
{
    return isOpaqueColor(cellColor({MvCalendarCellColorRoleEnum::bgcolor, cellType, MvParityLogic(even)}));
}

bool MvCalendariumAppearance::shouldIPaintTheBorder(const MvCalendarCellType &cellType) const
{
    return gridConfig().isEnabled() && d->layoutSchema.calendarCanPaintBorders() && borderType(cellType).isValid();
}

const MvCalendariumFontSettings &MvCalendariumAppearance::fontSettings() const
{
    return d->fontSettings;
}

void MvCalendariumAppearance::setFontSettings(const MvCalendariumFontSettings &settings)
{
    d->fontSettings = settings;
}

QFont MvCalendariumAppearance::font(const MvCalendarCellType &cellType, const MvSpaceMagnitude &magnitude,
                                    int minimum) const
{
    return atMostAsLayoutSays(
        d->fontSettings.font(d->layoutSchema.font(cellType), d->optimizedSize, magnitude, minimum), cellType,
        magnitude);
}

QFont MvCalendariumAppearance::fontHolidays(const MvCalendarCellType &cellType, const MvSpaceMagnitude &magnitude,
                                            int minimum) const
{
    return atMostAsLayoutSays(
        d->fontSettings.fontHolidays(d->layoutSchema.font(cellType), d->optimizedSize, magnitude, minimum), cellType,
        magnitude);
}

/// The layout's largest size is one of the paper that it is made for.
QFont MvCalendariumAppearance::atMostAsLayoutSays(QFont font, const MvCalendarCellType &cellType,
                                                  const MvSpaceMagnitude &magnitude) const
{
    const int points = d->layoutSchema.cellInfo(cellType).maxFontSize();
    const double most = MvMath::point2pixel(points, MvMath::referenceDpi) * d->optimizedSize.lengthFactor(magnitude);
    if (points > 0 && font.pixelSize() > most)
        font.setPixelSize(std::max(1, static_cast<int>(std::lround(most))));
    return font;
}

QFontMetrics MvCalendariumAppearance::fontMetrics(const MvCalendarCellType &cellType, const MvSpaceMagnitude &magnitude,
                                                  int minimum) const
{
    static QImage printer = [] {
        QImage image(1, 1, QImage::Format_Mono);
        image.setDotsPerMeterX(MvMath::printerResolution2dpm());
        image.setDotsPerMeterY(MvMath::printerResolution2dpm());
        return image;
    }();
    return QFontMetrics(font(cellType, magnitude, minimum), &printer);
}

MvSpaceMagnitude MvCalendariumAppearance::optimizedSize() const
{
    return d->optimizedSize;
}

QString MvCalendariumAppearance::columnHeaders() const
{
    return d->columnHeaders.text();
}

void MvCalendariumAppearance::setColumnHeaders(const QString &headers)
{
    if (d.constData()->columnHeaders.text() != headers)
        d->columnHeaders = MvColumnHeaders(headers);
}

void MvCalendariumAppearance::setColumnHeaders(const QList<QString> &headers)
{
    if (const MvColumnHeaders set(headers); !(d.constData()->columnHeaders == set))
        d->columnHeaders = set;
}

QStringList MvCalendariumAppearance::columnHeadersList() const
{
    return d->columnHeaders.list();
}

int MvCalendariumAppearance::countColumns() const
{
    return int(d->columnHeaders.list().size());
}

int MvCalendariumAppearance::offsetMonth() const
{
    return d->offsetMonth;
}

void MvCalendariumAppearance::setOffsetMonth(int months)
{
    constexpr int most = MvCalendariumAppearanceImpl::mostMonthsAhead;
    const int bounded = std::clamp(months, -most, most);
    if (d.constData()->offsetMonth != bounded)
        d->offsetMonth = bounded;
}

bool MvCalendariumAppearance::overriddenShowCalendarWeek() const
{
    return d->overrideShowCalendarWeek;
}

void MvCalendariumAppearance::setOverrideShowCalendarWeek(bool show)
{
    if (d.constData()->overrideShowCalendarWeek != show)
        d->overrideShowCalendarWeek = show;
}

void MvCalendariumAppearance::setUsedCellTypes(
    std::function<QList<MvCalendarCellType>(const MvCalendariumAppearance &)> usedTypes)
{
    usedCellTypes() = std::move(usedTypes);
}

bool operator==(const MvCalendariumAppearance &a, const MvCalendariumAppearance &b)
{
    return a.d == b.d || *a.d == *b.d;
}
