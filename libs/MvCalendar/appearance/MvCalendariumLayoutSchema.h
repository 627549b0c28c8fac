// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendarCellType.h"
#include "MvCalendar/MvCalendarRenderingInformation.h"
#include "MvCalendar/MvCalendariumLayoutCellInfo.h"
#include "MvCalendar/MvCalendariumLayoutSchemaID.h"
#include "MvCalendar/MvCalendariumType.h"
#include "MvCore/MvSpaceMagnitude.h"
#include "MvXML/MvLocalizedText.h"

#include <QSharedDataPointer>

struct MvCalendariumLayoutSchemaImpl;

/// The geometry of a calendarium, independent of its colours: which kind it is, what it shows and how the cells of
/// each type are laid out. A value; copies share their record until one is changed.
///
/// A default-constructed schema has no id and is invalid.
class MVCALENDAR_EXPORT MvCalendariumLayoutSchema
{
public:
    MvCalendariumLayoutSchema();
    explicit MvCalendariumLayoutSchema(const QDomElement &element);
    ~MvCalendariumLayoutSchema();
    MvCalendariumLayoutSchema(const MvCalendariumLayoutSchema &);
    MvCalendariumLayoutSchema(MvCalendariumLayoutSchema &&) noexcept;
    MvCalendariumLayoutSchema &operator=(const MvCalendariumLayoutSchema &);
    MvCalendariumLayoutSchema &operator=(MvCalendariumLayoutSchema &&) noexcept;

    void read(const QDomElement &element);
    void write(QDomElement &element) const;

    bool isValid() const;
    bool isUserSchema() const;
    const MvCalendariumLayoutSchemaID &ID() const;
    /// The name shown to users, in the program's language; the id where the file gives none. Attributes "name",
    /// "name_en".
    QString name() const;
    /// One sentence on what the layout is for, in the program's language; empty where the file gives none. Attributes
    /// "description", "description_en".
    QString description() const;
    const MvLocalizedText &localizedName() const;
    const MvLocalizedText &localizedDescription() const;
    size_t hashValue() const;

    // per cell type; a type that the schema does not have is laid out by default
    const MvCalendariumLayoutCellInfo &cellInfo(const MvCalendarCellType &type) const;
    QFont font(const MvCalendarCellType &type) const;
    Qt::Alignment textAlignment(const MvCalendarCellType &type) const;
    int cellBorderWidth(const MvCalendarCellType &type) const;
    MvCalendarBorderType borderType(const MvCalendarCellType &type) const;
    QMarginsF padding(const MvCalendarCellType &type) const;

    const MvCalendariumType &calendariumType() const;
    const MvCalendarRenderingInformation &renderingInformation() const;
    void setRenderingInformation(const MvCalendarRenderingInformation &information);
    /// Whether the names of holidays are shown; true unless a page switches it off. Not part of the schema's file.
    bool showHolidays() const;
    void setShowHolidays(bool show);

    // what the schema suggests for a new page; the page's own settings count, see
    // MvCalendariumAppearance::adoptLayoutSuggestions()
    /// Column headers joined by "$$"; empty where it has none. Attribute "columnheaders".
    const QString &suggestedColumnHeaders() const;
    /// Size of holiday texts relative to the font of their cell, -50 where nothing is said. Attribute
    /// "holidayfontpercentage".
    int suggestedHolidayFontPercentage() const;
    /// The layout of the line with the month's name that stands above this one on a page of its own; an invalid id for
    /// layouts that need none. Attribute "monthlayout".
    const MvCalendariumLayoutSchemaID &monthLayout() const;
    /// The paper class that fonts and paddings are made for (attribute "optimizedSize", "a8" to "a0"); none where the
    /// file does not say: A4 then.
    MvSpaceMagnitude optimizedSize() const;

    /// True when no cell of the schema has a border.
    bool allCellsHaveNoBorder() const;
    bool calendarCanPaintBorders() const;

    MVCALENDAR_EXPORT friend bool operator==(const MvCalendariumLayoutSchema &a, const MvCalendariumLayoutSchema &b);

private:
    QSharedDataPointer<MvCalendariumLayoutSchemaImpl> d;
};
