// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvProject/MvPageFormat.h"
#include "MvProject/MvPageTemplate.h"
#include "MvProject/MvTemplateStyle.h"

#include <QRectF>
#include <QString>

#include <variant>

/// What is in a slot for a photo.
struct MvTemplateFoto
{
    double aspect = 0.0;   // width by height of the part of the area that it takes, in its middle; 0: all of it
    double rotation = 0.0; // degrees
    double border = 0.0;   // tenths of a millimetre, white; 0: as the style has it
};

/// What is in a slot for a text.
struct MvTemplateText
{
    MvTemplateStyle::Role role = MvTemplateStyle::Role::Text;
    MvTextElement element; // as the template has it, before the style
};

/// What is in a slot for a calendarium.
struct MvTemplateCalendarium
{
    MvTemplateStyle::Shows shows = MvTemplateStyle::Shows::Grid;
    int monthOffset = 0;
    bool isOnFoto = false;
    bool hasMonthLine = true;
};

/// One slot of a template for pages of one shape: where on the field it stands, and what is in it. A value that a
/// reader fills.
///
/// Edges lie on columns and rows of the field or on the trim with its bleed. A month without the height for a grid
/// becomes a strip, a list of days without the height for 31 rows a grid.
struct MvTemplateRule
{
    static constexpr double lowestGrid = 340.0; // tenths of a millimetre
    static constexpr double lowestList = 850.0; // 31 lines of the smallest type

    using Foto = MvTemplateFoto;
    using Text = MvTemplateText;
    using Calendarium = MvTemplateCalendarium;

    QString slot;
    int firstColumn = 1; // of MvPageFormat::fieldColumns
    int lastColumn = MvPageFormat::fieldColumns;
    int firstRow = 1; // of MvPageFormat::fieldRows
    int lastRow = MvPageFormat::fieldRows;
    Qt::Edges bleed; // the sides that lie on the trim, with its bleed
    Qt::Edges joins; // the sides on which another photo lies close
    std::variant<Foto, Text, Calendarium> content;

    /// Where it stands on a page of the format.
    QRectF rect(const MvPageFormat &format) const;
    /// The slot as it stands there, dressed in the style.
    MvTemplateSlot slotFor(const MvPageFormat &format, const MvTemplateStyle &style) const;
};
