// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendarCellColorKey.h"
#include "MvCalendar/MvCalendarRenderingInformation.h"
#include "MvCalendar/MvCalendariumColorSchema.h"
#include "MvCalendar/MvCalendariumFontSettings.h"
#include "MvCalendar/MvCalendariumLayoutSchema.h"
#include "MvCore/MvSpaceMagnitude.h"

#include <QFont>
#include <QFontMetrics>
#include <QSharedDataPointer>
#include <QStringList>

#include <functional>

class MvCalendariumColorSchemaRegistry;
struct MvCalendariumAppearanceImpl;

/// How a calendarium looks: layout, colours, fonts, column headers. What a renderer is given. A value; copies share
/// their record until one is changed.
///
/// The kind of calendarium, what it renders and its holiday switch belong to the layout schema, the grid to the colour
/// schema; the operations here forward to them.
class MVCALENDAR_EXPORT MvCalendariumAppearance
{
public:
    /// Without schemas, invalid.
    MvCalendariumAppearance();
    /// Reads the element, see fromXML().
    MvCalendariumAppearance(const QDomElement &element, bool adaptGrid, MvCalendariumColorSchemaRegistry *registry);
    ~MvCalendariumAppearance();
    MvCalendariumAppearance(const MvCalendariumAppearance &);
    MvCalendariumAppearance(MvCalendariumAppearance &&) noexcept;
    MvCalendariumAppearance &operator=(const MvCalendariumAppearance &);
    MvCalendariumAppearance &operator=(MvCalendariumAppearance &&) noexcept;

    /// Reads the attributes of a page's calendarium element. Colour schema ids are looked up in the given registry
    /// first (may be null), then in the process-wide one. With `adaptGrid` the grid is switched on exactly when the
    /// layout has borders.
    void fromXML(const QDomElement &element, bool adaptGrid, MvCalendariumColorSchemaRegistry *registry);
    /// Writes them. With `embedUserSchema` a colour schema that is the user's, or not registered, is written whole.
    void write(QDomElement &element, bool embedUserSchema) const;

    /// Colour schema and layout schema are valid.
    bool isValid() const;

    // layout
    const MvCalendariumLayoutSchema &layoutSchema() const;
    /// Brings the paper class that the schema is made for, if it names one; see optimizedSize().
    void setLayoutSchema(const MvCalendariumLayoutSchema &schema);
    /// The same with a registered schema. An unknown id gives an invalid schema.
    void setLayoutSchemaByID(const MvCalendariumLayoutSchemaID &id);
    /// Takes the column headers and the size of holiday texts that the layout suggests: for a new page, or one that
    /// changes to this layout. Setting the layout alone keeps what the page has.
    void adoptLayoutSuggestions();
    const MvCalendariumType &type() const;
    const MvCalendarRenderingInformation &renderingInformation() const;
    void setRenderingInformation(const MvCalendarRenderingInformation &information);
    /// Whether the layout renders any of the given things.
    bool currentSchemaNeeds(const MvCalendarRenderingInformation &information) const;
    bool showHolidays() const;
    void setShowHolidays(bool show);
    Qt::Alignment textAlignment(const MvCalendarCellType &cellType) const;
    int cellBorderWidth(const MvCalendarCellType &cellType) const;
    /// Tenths of a millimetre.
    QMarginsF padding(const MvCalendarCellType &cellType) const;
    /// The sides with a line: none while the grid is off; all if the grid is on and the layout has no borders at all.
    MvCalendarBorderType borderType(const MvCalendarCellType &cellType) const;
    /// Which options the calendarium offers: bit 1 holidays, bit 2 their colours; 0 while holidays are off.
    int calendariumOptions() const;
    /// Whether the calendarium shows single days.
    bool rendererShowsDays() const;

    // colours
    const MvCalendariumColorSchema &colorSchema() const;
    void setColorSchema(const MvCalendariumColorSchema &schema);
    /// From the given registry if that has the id, else from the process-wide one, else an invalid schema.
    void setColorSchemaById(const MvCalendariumColorSchemaID &id, MvCalendariumColorSchemaRegistry *registry = nullptr);
    /// A copy with another colour schema.
    MvCalendariumAppearance createVariant(const MvCalendariumColorSchema &schema) const;
    MvBorderConfig gridConfig() const;
    void setGridConfig(const MvBorderConfig &grid);
    /// Switches the grid on exactly when the layout has borders.
    void adaptGridToLayout();
    QColor cellColor(const MvCalendarCellColorKey &key) const;
    void setCellColor(const QColor &color, const MvCalendarCellColorKey &key);
    bool haveSameColors(const MvCalendarCellType &typeA, const MvCalendarCellType &typeB) const;
    bool distinguishesParities() const;
    void copyColors(const MvCalendarCellType &fromType, const MvCalendarCellType &toType);
    void copyParities(bool from, bool to);
    /// Valid and not wholly transparent.
    bool isOpaqueColor(const QColor &color) const;
    bool shouldIPaintTheBackground(const MvCalendarCellType &cellType, bool even) const;
    bool shouldIPaintTheBorder(const MvCalendarCellType &cellType) const;

    // fonts; minimum in points, see MvCalendariumFontSettings::font(); never larger than the layout's largest size
    const MvCalendariumFontSettings &fontSettings() const;
    void setFontSettings(const MvCalendariumFontSettings &settings);
    QFont font(const MvCalendarCellType &cellType, const MvSpaceMagnitude &magnitude, int minimum) const;
    QFont fontHolidays(const MvCalendarCellType &cellType, const MvSpaceMagnitude &magnitude, int minimum) const;
    /// The metrics of font() at the printer's resolution.
    QFontMetrics fontMetrics(const MvCalendarCellType &cellType, const MvSpaceMagnitude &magnitude, int minimum) const;
    /// The paper class that the layout's fonts are made for: that of the file the appearance was read from, else the
    /// layout's own, else A4.
    MvSpaceMagnitude optimizedSize() const;

    // column headers, month offset, calendar weeks
    /// The headers joined by "$$". A "$" at the end of a header or before another one is followed by an invisible word
    /// joiner, so that it parts nothing.
    QString columnHeaders() const;
    void setColumnHeaders(const QString &headers);
    void setColumnHeaders(const QList<QString> &headers);
    /// The headers that are not empty.
    QStringList columnHeadersList() const;
    int countColumns() const;
    /// Months by which the calendarium is ahead of its page, at most a century either way.
    int offsetMonth() const;
    void setOffsetMonth(int months);
    /// Calendar weeks are shown although the layout does not ask for them.
    bool overriddenShowCalendarWeek() const;
    void setOverrideShowCalendarWeek(bool show);

    /// Installed by the renderer factory, which knows what the renderers show.
    static void setUsedCellTypes(std::function<QList<MvCalendarCellType>(const MvCalendariumAppearance &)> usedTypes);

    MVCALENDAR_EXPORT friend bool operator==(const MvCalendariumAppearance &a, const MvCalendariumAppearance &b);

private:
    QFont atMostAsLayoutSays(QFont font, const MvCalendarCellType &cellType, const MvSpaceMagnitude &magnitude) const;

    QSharedDataPointer<MvCalendariumAppearanceImpl> d;
};
